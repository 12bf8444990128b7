#pragma once

#include <QString>

#include "practice/AnswerFlow.h"
#include "practice/QuestionText.h"
#include "practice/RunState.h"

namespace tavoli {

class Dialogs;
class PracticeScreen;

class Random;

/// Asks one 小問 after the other: shows it, has the answer flow judge what was typed, and walks on
/// through the items until the learner ends the run.
class PracticeLoop {
 public:
  PracticeLoop(PracticeSet& set, const CourseChoice& course, PracticeConditions& conditions,
               PracticeScreen& screen, Dialogs& dialogs, Random& random);

  /// Shows the first question.
  void start();

  /// Any key in the answer box: what the last entry was told goes away.
  void keyPressed();
  /// Enter: judges what was typed, or leaves the full answer when that is on show.
  void enter(const QString& typed);
  /// F1: shows the answer of the 小問.
  void showAnswer();
  /// F11: the learner knows the 小問. `byButton` says that the button was clicked.
  void markKnown(bool byButton);
  /// Compares from now on as the choice says, from 0; the run's conditions keep it.
  void chooseComparison(int choice);
  /// Goes on to the next choice of the four.
  void nextComparison();

  /// Asks whether the questions are to come in any order, and on Yes starts over with them mixed.
  void reshuffle();

  /// F6 or the window's close button: asks, and closes the screen on Yes.
  void requestExit();
  /// Ends the run without a question.
  void exitAtOnce();

  bool exitConfirmed() const { return m_exitConfirmed; }
  /// The present item and 小問, from 1.
  int POS() const { return m_state.POS; }
  int POS1() const { return m_state.POS1; }
  bool 確認中() const { return m_確認中; }
  /// The answer box holds a sentence that is to be corrected.
  bool correcting() const { return isCorrection(m_state.record); }
  const RunState& state() const { return m_state; }

 private:
  /// The step after a change of item or 小問: shows the next admitted 小問, or the whole answer
  /// when none is left.
  void advance();
  /// Gives the caret back to the answer box; nothing else happens.
  void stay();
  void after(AnswerFlow::After result);
  /// Makes POS the current item. False when the run has ended instead.
  bool dispPOS1();
  /// Moves POS1 to the next 小問 whose memory state is admitted. False when none is left; POS1 then
  /// stands behind the last one.
  bool fnNextExist();
  void nextQuestion();
  void dispQuestion();
  /// Shows the whole item and waits for Enter.
  void dispAnswerFull();
  void leaveConfirmation();
  void 回数カウント();

  RunState m_state;
  PracticeScreen& m_screen;
  Dialogs& m_dialogs;
  Random& m_random;
  AnswerFlow m_flow;
  bool m_確認中 = false;
  bool m_exitConfirmed = false;
};

}  // namespace tavoli
