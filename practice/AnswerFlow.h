#pragma once

#include <QString>

#include "judge/MemoryTransition.h"
#include "practice/RunState.h"

namespace tavoli {

class Dialogs;
class PracticeScreen;

/// What the keys do to the 小問 that is being asked: the learning flow of a 全然 one, and the mini
/// test of the others.
class AnswerFlow {
 public:
  AnswerFlow(RunState& state, PracticeScreen& screen, Dialogs& dialogs);

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
  MemoryTransition judged(const Comparison& comparison);
  After moveOn(const MemoryTransition& transition);
  After repeat(const MemoryTransition& transition);
  void refuse(const Comparison& comparison, const MemoryTransition& transition);
  /// Puts the given start back into the answer box of a sentence, empties that of a word.
  void askAgain();
  void guardMemoryCode() const;

  RunState& m_state;
  PracticeScreen& m_screen;
  Dialogs& m_dialogs;
};

}  // namespace tavoli
