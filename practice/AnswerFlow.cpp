#include "practice/AnswerFlow.h"

#include <algorithm>
#include <utility>

#include "itemtext/QuestionText.h"
#include "practice/DamageGuard.h"
#include "practice/PracticeScreen.h"
#include "practice/VerdictText.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int maxTimes = 99;

}  // namespace

AnswerFlow::AnswerFlow(RunState& state, PracticeScreen& screen, Dialogs& dialogs,
                       DamageGuard& damage)
    : m_state(state), m_screen(screen), m_dialogs(dialogs), m_damage(damage) {}

AnswerFlow::After AnswerFlow::enter(const QString& typed) {
  const bool miniTest = m_state.inMiniTest();
  if (miniTest) m_screen.showMiniTest(MarkedText());
  // An entry of nothing but what was given costs nothing.
  const QString entry = CleanTypedAnswer(typed);
  if (addsNothing(m_state.record, m_state.POS1, entry)) {
    askAgain();
    return After::Stay;
  }
  ++m_state.tryCount;
  m_state.復習する = true;
  m_state.FK次小問 = false;
  const Comparison comparison = COMP(m_state.record, m_state.POS1, entry, m_state.comparison);
  const MemoryTransition transition = judged(comparison);
  switch (transition.next) {
    case NextStep::NextSubQuestion:
      if (miniTest) guardMemoryCode();
      return moveOn(transition, comparison.ANScomp);
    case NextStep::Repeat:
      return repeat(transition, comparison.ANScomp);
    case NextStep::SameSubQuestion:
      break;
  }
  refuse(comparison, transition);
  return After::Stay;
}

MemoryTransition AnswerFlow::judged(const Comparison& comparison) {
  const bool sentence = m_state.record.sentence;
  JudgedEntry entry;
  entry.state = m_state.小問().記;
  entry.ANScomp = comparison.ANScomp;
  entry.accepted = comparison.accepted;
  entry.tryCount = m_state.tryCount;
  entry.answerShown = m_state.answerShown;
  entry.timeOver = m_state.timeOver;
  entry.firstMeaning = sentence || m_state.wordShownCount <= 1;
  entry.meaning = m_state.小問().日本語;
  return memoryTransition(entry);
}

void AnswerFlow::remember(MemoryState state, const QString& message, const QString& otherwise) {
  const bool changes = std::exchange(m_state.小問().記, state) != state;
  const bool kept = m_state.RewriteRecord();
  const QString told = kept || !changes ? message : otherwise + m_damage.memoryUnchanged();
  // A meaning may hold display marks; an answer is plain text.
  m_screen.showMessage(m_state.record.sentence ? plainText(told) : parseMarks(told));
}

AnswerFlow::After AnswerFlow::moveOn(const MemoryTransition& transition, Verdict verdict) {
  SubQuestion& s = m_state.小問();
  const bool learnt = s.記 == MemoryState::全然;
  if (!m_state.record.sentence) {
    s.小問回数 = std::min(maxTimes, s.小問回数 + 1);
    if (learnt) m_state.repeatsLeft = 1;
  } else if (learnt || (verdict == Verdict::Variant && m_state.tryCount <= 1)) {
    // Of the right entries of a mini test, a variant alone sets the repeats anew.
    m_state.repeatsLeft = m_state.conditions.firstRepeatSent;
  }
  remember(transition.state, transition.message, praise(verdict));
  m_state.answered.set(static_cast<size_t>(m_state.POS1));
  ++m_state.POS1;
  return After::Advance;
}

AnswerFlow::After AnswerFlow::repeat(const MemoryTransition& transition, Verdict verdict) {
  --m_state.repeatsLeft;
  if (m_state.repeatsLeft <= 0) return moveOn(transition, verdict);
  m_screen.showMessage(plainText(repeatsText(m_state.repeatsLeft)));
  askAgain();
  return After::Stay;
}

void AnswerFlow::refuse(const Comparison& comparison, const MemoryTransition& transition) {
  const bool miniTest = m_state.inMiniTest();
  const QString answer = answerOf(m_state.record, m_state.POS1);
  switch (comparison.ANScomp) {
    case Verdict::Variant:
      m_screen.showFullAnswer(toleratedText(comparison, answer));
      break;
    case Verdict::MarkMissing:
    case Verdict::WrongMark:
      // A mini test forgives a slip of the mark: the entry does not count.
      if (miniTest) --m_state.tryCount;
      m_screen.showFullAnswer(slipText(comparison, answer));
      m_screen.setAnswer(comparison.typedAnswer);
      return;
    default:
      if (miniTest) {
        m_screen.showFullAnswer(plainText(notRightText(comparison.typedAnswer) +
                                          QStringLiteral("　試行数 = %1").arg(m_state.tryCount)));
      } else {
        ++m_state.tryCount;
        m_screen.showFullAnswer(wrongText(comparison));
      }
  }
  if (!miniTest && !m_state.record.sentence) m_screen.lookUp(comparison.typedAnswer);
  askAgain();
  if (transition.state == m_state.小問().記) return;
  remember(transition.state, transition.message, QString());
  m_screen.enableKey(FunctionKey::F1, true);
}

void AnswerFlow::askAgain() {
  m_screen.setAnswer(answerStart(m_state.record, m_state.POS1));
}

void AnswerFlow::guardMemoryCode() const {
  const MemoryState code = m_state.record.記(m_state.POS1);
  if (code == MemoryState::うろ覚え || code == MemoryState::完全) return;
  const bool first = m_state.tryCount <= 1;
  const QString place = !first                    ? QStringLiteral("２=")
                        : m_state.record.sentence ? QStringLiteral("=")
                                                  : QStringLiteral("１=");
  m_dialogs.show(QStringLiteral("MiniTest 記(POS1)") + place + stored(code));
}

AnswerFlow::After AnswerFlow::KnownKey(bool byButton) {
  const QString text = m_state.record.text(m_state.POS1);
  const MemoryState before = m_state.小問().記;
  const MemoryState known = knownTransition(before);
  const QString kept = (byButton ? u"「 "_s + text + u"」"_s : u"『 "_s + text + u"』"_s) +
                       u"：記憶状態の変化なし。"_s;
  const QString changed = u"『うろ覚え』にしました。"_s +
                          (m_state.record.sentence ? QString() : u"『 "_s + text + u" 』"_s);
  remember(known, known == before ? kept : changed, QString());
  m_screen.showMiniTest(MarkedText());
  ++m_state.POS1;
  return After::Advance;
}

void AnswerFlow::showAnswer() {
  if (m_state.inMiniTest()) return;
  m_state.answerShown = true;
  m_screen.showFullAnswer(
      plainText(QStringLiteral("正解：") + answerLine(m_state.record, m_state.POS1)));
}

void AnswerFlow::ShowMiniTestNotice() {
  const MemoryState code = m_state.小問().記;
  const bool うろ覚え = code == MemoryState::うろ覚え;
  if (!うろ覚え && code != MemoryState::完全) {
    m_screen.showMiniTest(MarkedText());
    m_screen.enableKey(FunctionKey::F1, code == MemoryState::全然);
    return;
  }
  const QString rules =
      うろ覚え
          ? QStringLiteral("１回目で正解すれば『完全』記憶に変更、％２回目で正解すれば不変、％")
          : QStringLiteral("１、２回目で正解すれば『完全』を維持、％");
  m_screen.enableKey(FunctionKey::F1, false);
  m_screen.showMiniTest(
      parseMarks(QStringLiteral("小問Ｎｏ.{%1}％記憶状態（現在『{%2}』）を変化させます。％％%3")
                     .arg(QString::number(m_state.POS1),
                          うろ覚え ? QStringLiteral("うろ") : QStringLiteral("完全"), rules) +
                 QStringLiteral("２回以上間違えば『全然』に変更します。")));
}

}  // namespace tavoli
