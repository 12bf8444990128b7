#pragma once

#include <QString>

#include "judge/MemoryTransition.h"
#include "practice/RunState.h"

namespace tavoli {

class DamageGuard;
class Dialogs;
class PracticeScreen;

/// What the keys do to the 小問 that is being asked: the learning flow of a 全然 one, and the mini
/// test of the others.
class AnswerFlow {
 public:
  AnswerFlow(RunState& state, PracticeScreen& screen, Dialogs& dialogs, DamageGuard& damage);

  /// What the loop has to do after a key.
  enum class After {
    Stay,    ///< the same 小問 is asked on
    Advance  ///< POS1 has moved on
  };

  /// Enter with what stands in the answer box.
  After enter(const QString& typed);
  /// F11: the learner knows the 小問. A key and a button tell it with different brackets.
  After KnownKey(bool byButton);
  /// F1: shows the answer, which then earns no promotion. A mini test has none to show.
  void showAnswer();
  /// Tells what a mini test will do, or hides the notice where none is due.
  void ShowMiniTestNotice();

 private:
  /// Gives the present 小問 a memory code, stores the record, and tells the learner so; what is
  /// told of a damaged record instead is `otherwise` and that its memory stays.
  void remember(MemoryState state, const QString& message, const QString& otherwise);
  MemoryTransition judged(const Comparison& comparison);
  After moveOn(const MemoryTransition& transition, Verdict verdict);
  After repeat(const MemoryTransition& transition, Verdict verdict);
  void refuse(const Comparison& comparison, const MemoryTransition& transition);
  /// Puts the given start back into the answer box of a sentence, empties that of a word.
  void askAgain();
  void guardMemoryCode() const;

  RunState& m_state;
  PracticeScreen& m_screen;
  Dialogs& m_dialogs;
  DamageGuard& m_damage;
};

}  // namespace tavoli
