// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "contentbuilder/ContentTable.h"
#include "data/CurrentRecord.h"

namespace tavoli {

/// The English lines of a question, without display marks.
QStringList englishLines(const QString& 問題文);

/// Whether the learner is to correct a sentence that the question holds.
bool asksToCorrect(const QString& 問題文);

/// The answer without what is given of it, where that is no part of the sentence.
QString sentenceOf(const SubQuestion& answer);

/// What is wrong in the wording of a sentence, one line for each mistake; `record` is the row's
/// record taken apart.
QStringList sentenceProblems(const ContentRow& row, const CurrentRecord& record);

}  // namespace tavoli
