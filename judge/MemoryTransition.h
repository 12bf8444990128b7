// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "data/Codes.h"
#include "judge/Comparison.h"

// How a 小問 moves among 全然, うろ覚え and 完全. Both flows of the answer key use this one
// function.
namespace tavoli {

/// A judged entry, and what counts for the memory state.
struct JudgedEntry {
  MemoryState state{};  ///< the 小問's memory state before the entry: 全然 is learnt, the others
                        ///< are mini tests
  Verdict ANScomp = Verdict::Wrong;
  bool accepted = false;     ///< of a Variant: it counts as right
  int tryCount = 1;          ///< which entry on this 小問 it is, from 1
  bool answerShown = false;  ///< the answer was looked at with F1
  bool timeOver = false;     ///< the target time has passed
  bool firstMeaning = true;  ///< of a word: the first meaning asked in this visit
  QString meaning;           ///< of a word: its 日本語; empty for a sentence
};

/// "○　正解です。" of the answer itself, with "◎" for a variant that counts as right.
QString praise(Verdict verdict);

/// What an entry leads to.
enum class NextStep {
  NextSubQuestion,  ///< done with this 小問
  Repeat,           ///< one more of the required entries is done; the next 小問 when none is left
  SameSubQuestion   ///< the same 小問 again
};

struct MemoryTransition {
  MemoryState state{};  ///< the memory state after the entry
  /// What the message area tells; empty where the verdict has a text of its own.
  QString message;
  NextStep next = NextStep::SameSubQuestion;
};

MemoryTransition memoryTransition(const JudgedEntry& entry);

/// F11, the learner says that the 小問 is known: 全然 becomes うろ覚え, the others stay.
MemoryState knownTransition(MemoryState state);

}  // namespace tavoli
