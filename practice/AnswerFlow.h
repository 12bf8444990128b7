// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "judge/MemoryTransition.h"
#include "practice/EntryJudge.h"
#include "practice/PracticeScreen.h"
#include "practice/RunState.h"

namespace tavoli {

class DamageGuard;
class Dialogs;

/// What has been tried on the item and on its present 小問. The answer flow alone writes it.
struct Attempt {
  int tryCount = 0;          ///< entries on this 小問
  int repeatsLeft = 0;       ///< right entries still wanted before the next 小問
  bool answerShown = false;  ///< F1 was used on this 小問
  bool timeOver = false;     ///< the target time has passed on this 小問
  bool 復習する = false;     ///< the item was really answered
  bool FK次小問 = false;     ///< the last 小問 was left by F2, and nothing was answered since
};

/// What the keys do to the 小問 that is being asked: the learning flow of a 全然 one, and the mini
/// test of the others.
class AnswerFlow {
 public:
  AnswerFlow(RunState& state, PracticeScreen& screen, Dialogs& dialogs, DamageGuard& damage);

  const Attempt& attempt() const { return m_attempt; }
  /// Another item is shown.
  void beginItem();
  /// Another 小問 is asked.
  void beginSubQuestion();
  /// Whether the target time has passed.
  void takeTime(bool over) { m_attempt.timeOver = over; }

  /// What the loop has to do after a key.
  enum class After {
    Stay,    ///< the same 小問 is asked on
    Advance  ///< POS1 has moved on
  };

  /// Enter with what stands in the answer box.
  After enter(const QString& typed);
  /// F2: leaves the 小問 as it is.
  void skip();
  /// F11: the learner knows the 小問. A key and a button tell it with different brackets.
  After KnownKey(Pressed pressed);
  /// F1: shows the answer, which then earns no promotion. A mini test has none to show.
  void showAnswer();
  /// Tells what a mini test will do, or hides the notice where none is due.
  void ShowMiniTestNotice();

 private:
  /// Gives the present 小問 a memory state, stores the record, and tells the learner so; what is
  /// told of a damaged record instead is `otherwise` and that its memory stays.
  void remember(MemoryState state, const QString& message, const QString& otherwise);
  MemoryTransition judged(const Comparison& comparison) const;
  After moveOn(const MemoryTransition& transition, Verdict verdict);
  After repeat(const MemoryTransition& transition, Verdict verdict);
  void refuse(const Comparison& comparison, const MemoryTransition& transition);
  void askAgain() const;
  void guardMemoryCode() const;

  RunState& m_state;
  ShownItem& m_shown;
  PracticeScreen& m_screen;
  Dialogs& m_dialogs;
  DamageGuard& m_damage;
  EntryJudge m_judge;
  Attempt m_attempt;
};

}  // namespace tavoli
