// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/AnswerFlow.h"

#include "itemtext/QuestionText.h"
#include "practice/DamageGuard.h"
#include "practice/PracticeScreen.h"
#include "practice/VerdictText.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

AnswerFlow::AnswerFlow(RunState& state, PracticeScreen& screen, Dialogs& dialogs,
                       DamageGuard& damage)
    : m_state(state),
      m_shown(state.shown),
      m_screen(screen),
      m_dialogs(dialogs),
      m_damage(damage),
      m_judge(screen) {}

void AnswerFlow::beginItem() {
  const PracticeConditions& c = m_state.conditions;
  m_attempt.復習する = false;
  m_attempt.FK次小問 = false;
  m_attempt.repeatsLeft = m_shown.item().isSentence() ? c.firstRepeatSent : c.firstRepeatWord;
}

void AnswerFlow::beginSubQuestion() {
  m_attempt.tryCount = 0;
  m_attempt.answerShown = false;
  m_attempt.timeOver = false;
  m_attempt.FK次小問 = false;
}

AnswerFlow::After AnswerFlow::enter(const QString& typed) {
  const bool miniTest = m_shown.inMiniTest();
  if (miniTest) m_screen.showMiniTest(MarkedText());
  const std::optional<Comparison> comparison =
      m_judge.judge(m_shown.record(), m_shown.POS1(), typed, m_state.comparison);
  if (!comparison) return After::Stay;
  ++m_attempt.tryCount;
  m_attempt.復習する = true;
  m_attempt.FK次小問 = false;
  const MemoryTransition transition = judged(*comparison);
  switch (transition.next) {
    case NextStep::NextSubQuestion:
      if (miniTest) guardMemoryCode();
      return moveOn(transition, comparison->ANScomp);
    case NextStep::Repeat:
      return repeat(transition, comparison->ANScomp);
    case NextStep::SameSubQuestion:
      break;
  }
  refuse(*comparison, transition);
  return After::Stay;
}

MemoryTransition AnswerFlow::judged(const Comparison& comparison) const {
  JudgedEntry entry;
  entry.state = m_shown.小問().記;
  entry.ANScomp = comparison.ANScomp;
  entry.accepted = comparison.accepted;
  entry.tryCount = m_attempt.tryCount;
  entry.answerShown = m_attempt.answerShown;
  entry.timeOver = m_attempt.timeOver;
  entry.firstMeaning = m_shown.record().sentence || m_shown.wordShownCount() <= 1;
  entry.meaning = m_shown.小問().日本語;
  return memoryTransition(entry);
}

void AnswerFlow::remember(MemoryState state, const QString& message, const QString& otherwise) {
  const bool changes = m_shown.小問().記 != state;
  const bool kept = m_shown.remember(state);
  const QString told = kept || !changes ? message : otherwise + m_damage.memoryUnchanged();
  // A meaning may hold display marks; an answer is plain text.
  m_screen.showMessage(m_shown.record().sentence ? plainText(told) : parseMarks(told));
}

AnswerFlow::After AnswerFlow::moveOn(const MemoryTransition& transition, Verdict verdict) {
  const bool learnt = m_shown.小問().記 == MemoryState::全然;
  if (!m_shown.record().sentence) {
    m_shown.countMeaning();
    if (learnt) m_attempt.repeatsLeft = 1;
  } else if (learnt || (verdict == Verdict::Variant && m_attempt.tryCount <= 1)) {
    // Of the right entries of a mini test, a variant alone sets the repeats again.
    m_attempt.repeatsLeft = m_state.conditions.firstRepeatSent;
  }
  remember(transition.state, transition.message, praise(verdict));
  m_shown.leaveAnswered();
  return After::Advance;
}

AnswerFlow::After AnswerFlow::repeat(const MemoryTransition& transition, Verdict verdict) {
  --m_attempt.repeatsLeft;
  if (m_attempt.repeatsLeft <= 0) return moveOn(transition, verdict);
  m_screen.showMessage(plainText(repeatsText(m_attempt.repeatsLeft)));
  askAgain();
  return After::Stay;
}

void AnswerFlow::refuse(const Comparison& comparison, const MemoryTransition& transition) {
  const bool miniTest = m_shown.inMiniTest();
  if (miniTest && comparison.ANScomp == Verdict::Wrong) {
    m_screen.showFullAnswer(plainText(notRightText(comparison.typedAnswer) +
                                      u"　試行数 = %1"_s.arg(m_attempt.tryCount)));
  } else {
    m_judge.refuse(m_shown.record(), m_shown.POS1(), comparison);
  }
  if (isSlip(comparison.ANScomp)) {
    // A mini test forgives a slip of the mark: the entry does not count.
    if (miniTest) --m_attempt.tryCount;
    return;
  }
  if (!miniTest) m_judge.lookUp(m_shown.record(), comparison);
  askAgain();
  if (transition.state == m_shown.小問().記) return;
  remember(transition.state, transition.message, QString());
  m_screen.enableKey(FunctionKey::F1, true);
}

void AnswerFlow::askAgain() const {
  m_judge.askAgain(m_shown.record(), m_shown.POS1());
}

void AnswerFlow::skip() {
  m_attempt.FK次小問 = true;
  m_shown.leave();
}

void AnswerFlow::guardMemoryCode() const {
  const MemoryState code = m_shown.小問().記;
  if (code == MemoryState::うろ覚え || code == MemoryState::完全) return;
  const bool first = m_attempt.tryCount <= 1;
  const QString place = !first ? u"２="_s : m_shown.record().sentence ? u"="_s : u"１="_s;
  m_dialogs.show(u"MiniTest 記(POS1)"_s + place + stored(code));
}

AnswerFlow::After AnswerFlow::KnownKey(Pressed pressed) {
  const QString text = m_shown.record().text(m_shown.POS1());
  const MemoryState before = m_shown.小問().記;
  const MemoryState known = knownTransition(before);
  const QString kept =
      (pressed == Pressed::Button ? u"「 "_s + text + u"」"_s : u"『 "_s + text + u"』"_s) +
      u"：記憶状態の変化なし。"_s;
  const QString changed = u"『うろ覚え』にしました。"_s +
                          (m_shown.record().sentence ? QString() : u"『 "_s + text + u" 』"_s);
  remember(known, known == before ? kept : changed, QString());
  m_screen.showMiniTest(MarkedText());
  m_shown.leave();
  return After::Advance;
}

void AnswerFlow::showAnswer() {
  if (m_shown.inMiniTest()) return;
  m_attempt.answerShown = true;
  m_screen.showFullAnswer(plainText(u"正解："_s + answerLine(m_shown.record(), m_shown.POS1())));
}

void AnswerFlow::ShowMiniTestNotice() {
  const MemoryState code = m_shown.小問().記;
  const bool うろ覚え = code == MemoryState::うろ覚え;
  if (!うろ覚え && code != MemoryState::完全) {
    m_screen.showMiniTest(MarkedText());
    m_screen.enableKey(FunctionKey::F1, code == MemoryState::全然);
    return;
  }
  const QString rules =
      うろ覚え ? u"１回目で正解すれば『完全』記憶に変更、％２回目で正解すれば不変、％"_s
               : u"１、２回目で正解すれば『完全』を維持、％"_s;
  m_screen.enableKey(FunctionKey::F1, false);
  m_screen.showMiniTest(
      parseMarks(u"小問Ｎｏ.{%1}％記憶状態（現在『{%2}』）を変化させます。％％%3"_s.arg(
                     QString::number(m_shown.POS1()), うろ覚え ? u"うろ"_s : u"完全"_s, rules) +
                 u"２回以上間違えば『全然』に変更します。"_s));
}

}  // namespace tavoli
