// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bitset>

#include "data/CurrentRecord.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

/// The 小問 of an item that were answered rightly since it was shown, by their numbers from 1.
using AnsweredSubQuestions = std::bitset<maxSubQuestions + 1>;

/// Which 小問 of an item is asked, and how the question tells so.
struct QuestionView {
  /// The question; the asked blank is marked, and answered ones hold their answers.
  MarkedText question;
  int POS1 = 1;   ///< the 小問 that is asked; behind the last one when nothing is asked any more
  int count = 1;  ///< how many are asked one after the other
};

/// How a question is shown while its 小問 `POS1` is asked. Blanks are marked only in a sentence
/// that has as many of them as answers; any other question stays as it is.
QuestionView questionView(const MarkedText& question, const CurrentRecord& record, int POS1,
                          const AnsweredSubQuestions& answered);

/// The number of the asked 小問 and how many there are, "2／3"; empty where there is but one.
QString subQuestionNumber(const QuestionView& view);

/// What the empty answer box says of the question: "小問 2／3", and how "～" is typed; empty where
/// there is nothing to tell.
QString answerHint(const QuestionView& view);

}  // namespace tavoli
