// SPDX-License-Identifier: GPL-3.0-or-later

#include "judge/MemoryTransition.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// Right, or a variant that counts as right.
bool isRight(const JudgedEntry& e) {
  return e.ANScomp == Verdict::Right || (e.ANScomp == Verdict::Variant && e.accepted);
}

/// The circle of a right answer, double for a variant.
QString circle(Verdict verdict) {
  return verdict == Verdict::Variant ? u"◎"_s : u"○"_s;
}

MemoryTransition learn(const JudgedEntry& e) {
  if (!isRight(e)) return {e.state, QString(), NextStep::SameSubQuestion};
  const QString right = praise(e.ANScomp);
  const bool atFirst = e.tryCount <= 1 && !e.answerShown && !e.timeOver;
  if (!atFirst) return {e.state, right, NextStep::Repeat};
  // Only one meaning of a word is rewarded at a visit; the others need no repeats either.
  if (!e.firstMeaning) return {e.state, right, NextStep::NextSubQuestion};
  const QString promoted = e.meaning.isEmpty()
                               ? u"○　正解です。　『うろ覚え』にしました。"_s
                               : u"○　正解です。『うろ覚え』にしました。『 %1 』"_s.arg(e.meaning);
  return {MemoryState::うろ覚え, promoted, NextStep::NextSubQuestion};
}

/// The message of a mini test that leaves the state as it is; none for a code that is no state.
QString keptMessage(MemoryState state, const QString& circle) {
  if (state == MemoryState::完全) return circle + u"　正解です。　『完全記憶を維持』します。"_s;
  if (state == MemoryState::うろ覚え) return circle + u"　正解です。　『うろ覚えを維持』します。"_s;
  return {};
}

MemoryTransition miniTest(const JudgedEntry& e) {
  const bool second = e.tryCount >= 2;
  if (second && (isRight(e) || e.ANScomp == Verdict::Variant))
    return {e.state, keptMessage(e.state, u"○"_s), NextStep::NextSubQuestion};
  if (isRight(e) && e.state == MemoryState::うろ覚え) {
    return {MemoryState::完全, circle(e.ANScomp) + u"　正解です。　『完全記憶』にしました。"_s,
            NextStep::NextSubQuestion};
  }
  if (isRight(e))
    return {e.state, keptMessage(e.state, circle(e.ANScomp)), NextStep::NextSubQuestion};
  if (second && e.ANScomp == Verdict::Wrong) {
    return {MemoryState::全然, u"『全然』に記憶状態を戻しました。"_s, NextStep::SameSubQuestion};
  }
  return {e.state, QString(), NextStep::SameSubQuestion};
}

}  // namespace

QString praise(Verdict verdict) {
  return circle(verdict) + u"　正解です。\n"_s;
}

MemoryTransition memoryTransition(const JudgedEntry& entry) {
  return entry.state == MemoryState::全然 ? learn(entry) : miniTest(entry);
}

MemoryState knownTransition(MemoryState state) {
  return state == MemoryState::全然 ? MemoryState::うろ覚え : state;
}

}  // namespace tavoli
