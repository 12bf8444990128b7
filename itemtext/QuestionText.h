// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "data/Courses.h"
#include "data/CurrentRecord.h"

// The texts that a question is shown with. Each says whether it has display marks.
namespace tavoli {

/// What the answer box begins with for the k-th 小問: the given characters, or for a sentence that
/// is to be corrected the sentence itself.
QString answerStart(const CurrentRecord& record, int k);

/// Whether the learner corrects a sentence instead of filling a blank.
bool isCorrection(const CurrentRecord& record);

/// Each answer of a sentence, the part that may be left out in brackets.
QStringList sentenceAnswerLines(const CurrentRecord& record);

/// The answer of the k-th 小問 as it is shown on demand: its line of a sentence, 英語 of a word.
QString answerLine(const CurrentRecord& record, int k);

/// The synonyms in brackets, where there are any, and the meanings.
QStringList wordAnswerLines(const CurrentRecord& record);

/// The whole item as it is shown when all is answered, with display marks.
QString fullAnswerText(const CurrentRecord& record);

/// Where the item comes from: "問題　中学" for a sentence, "問題　高校DB" for a word; empty for a
/// code that the course does not have.
QString sourceLabel(const CurrentRecord& record, const QString& key, TableCode itemTable,
                    Course COURSE);

}  // namespace tavoli
