// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "data/Courses.h"
#include "data/Database.h"

// What a run may start at, as it is offered in a list.
namespace tavoli {

/// The entries of a lesson: sentences by their number and mark, words without outer blanks; lines
/// that begin with "*" are left out.
QStringList lessonStarts(const QStringList& lessonLines);

/// The words of a dictionary in its order, up to the end mark of its content, which is listed too.
/// Nothing when there is no such dictionary.
std::optional<QStringList> wordStarts(Database& database, const QString& table);

/// The sentences from the course's first one on to the last of all, each with the head of its
/// text. Course 専門 begins at the very first sentence.
QStringList sentenceStarts(Database& database, Course COURSE);

}  // namespace tavoli
