// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/EntryJudge.h"

#include "itemtext/QuestionText.h"
#include "practice/AnswerScreen.h"
#include "practice/VerdictText.h"

namespace tavoli {

std::optional<Comparison> EntryJudge::judge(const CurrentRecord& record, int k,
                                            const QString& typed,
                                            const ComparisonSettings& settings) const {
  const QString entry = CleanTypedAnswer(typed);
  if (!addsNothing(record, k, entry)) return COMP(record, k, entry, settings);
  askAgain(record, k);
  return std::nullopt;
}

void EntryJudge::askAgain(const CurrentRecord& record, int k) const {
  m_screen.setAnswer(answerStart(record, k));
}

void EntryJudge::refuse(const CurrentRecord& record, int k, const Comparison& comparison) const {
  const QString answer = answerOf(record, k);
  if (isSlip(comparison.ANScomp)) {
    m_screen.showFullAnswer(slipText(comparison, answer));
    m_screen.setAnswer(comparison.typedAnswer);
  } else {
    m_screen.showFullAnswer(comparison.ANScomp == Verdict::Variant
                                ? toleratedText(comparison, answer)
                                : wrongText(comparison));
  }
}

void EntryJudge::lookUp(const CurrentRecord& record, const Comparison& comparison) const {
  if (!record.sentence) m_screen.lookUp(comparison.typedAnswer);
}

}  // namespace tavoli
