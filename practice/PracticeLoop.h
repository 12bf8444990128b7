// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "itemtext/QuestionText.h"
#include "practice/AnswerClock.h"
#include "practice/AnswerFlow.h"
#include "practice/DamageGuard.h"
#include "practice/PracticeVoice.h"
#include "practice/QuestionRequests.h"
#include "practice/RestTime.h"
#include "practice/RestingDialogs.h"
#include "practice/ReviewDrill.h"
#include "practice/ReviewRing.h"
#include "practice/RunReport.h"
#include "practice/RunState.h"

namespace tavoli {

class Dialogs;
class PracticeScreen;
class ReviewScreen;

class Clock;
class Random;
class Speaker;

/// What the loop works with.
struct LoopServices {
  PracticeScreen& screen;
  ReviewScreen& reviewScreen;
  Dialogs& dialogs;
  Random& random;
  const Clock& clock;
  Speaker& speaker;
  ProgressCounters progress = {};  ///< what was counted before this run
};

/// What the loop waits for.
enum class Phase {
  asking,      ///< an answer
  confirming,  ///< Enter on the full answer
  reviewing,   ///< the end of a review of earlier items, to which the keys belong meanwhile
  ended        ///< nothing more: the run is over
};

/// Asks one 小問 after the other: shows it, has the answer flow judge what was typed, and walks on
/// through the items until the learner ends the run.
class PracticeLoop {
 public:
  PracticeLoop(PracticeSet& set, const CourseChoice& course, const PracticeConditions& conditions,
               RunClock& times, const LoopServices& services);

  /// Shows the first question. `timeUpSound` as in chooseTimeUpSound.
  void start(int timeUpSound);

  /// Any key in the answer box: the messages about the last entry disappear.
  void keyPressed();
  /// Keys that come together, as a line of a terminal does: they count for the voice.
  void keysTyped(int keys);
  /// Enter: judges what was typed, or leaves the full answer when that is on show.
  void enter(const QString& typed);
  /// The answer box has lost the focus: a sign of life, like any key.
  void answerBoxLeft() { activity(); }
  /// A click into the answer box, which holds `typed`: leaves the full answer when that is on show.
  void answerBoxClicked(const QString& typed);

  /// F1: shows the answer of the 小問.
  void showAnswer();
  /// F2: the next 小問, unasked.
  void nextSubQuestion();
  /// F3: the next item, whatever is left of this one.
  void nextItem();
  /// F4: the item before this one; before the first comes the last.
  void previousItem();
  /// F11: the learner knows the 小問.
  void markKnown(Pressed pressed);

  /// F9: the item is to be printed at the end of the run.
  void requestPrint();

  /// To be called once a second: moves the time strip, and sounds when the target time has passed.
  void tick();
  /// Shows or hides the run's log.
  void toggleLog();
  /// 0 no sound at the end of the target time, 1 a beep, 2 the spoken sentence.
  void chooseTimeUpSound(int choice);
  /// Takes the numbers of repeats over, from now on.
  void chooseRepeats(const PracticeConditions& chosen);
  /// Compares from now on as the choice says, from 0; the run's conditions keep it.
  void chooseComparison(int choice);
  /// Goes on to the next choice of the four.
  void nextComparison();

  /// Asks whether the questions are to come in any order, and on Yes starts over with them mixed.
  void reshuffle();

  /// F6 or the window's close button: asks, and closes the screen on Yes.
  void requestExit();
  /// F7: asks, and on Yes ends the run so that another lesson can be chosen.
  void requestLessonChange();
  /// Ends the run without a question.
  void exitAtOnce();

  Phase phase() const { return m_phase; }
  bool 確認中() const { return m_phase == Phase::confirming; }
  bool 復習中() const { return m_phase == Phase::reviewing; }
  /// The run is over, by F6 or F7.
  bool exitConfirmed() const { return m_phase == Phase::ended; }
  /// It is over by F7: the conditions screen comes back.
  bool backToConditions() const { return m_backToConditions; }
  /// The present item and 小問, from 1.
  int POS() const { return m_state.shown.POS(); }
  int POS1() const { return m_state.shown.POS1(); }
  /// The answer box holds a sentence that is to be corrected.
  bool correcting() const { return isCorrection(m_state.shown.record()); }
  const RunState& state() const { return m_state; }
  const Attempt& attempt() const { return m_flow.attempt(); }
  /// As they were chosen in the run.
  const PracticeConditions& conditions() const { return m_state.conditions; }
  const RunReport& report() const { return m_report; }
  /// What is to be printed when the run is over.
  QuestionRequests& printRequests() { return m_printRequests; }
  /// Asks items of the run, by their numbers, once more; the practice waits.
  void startReview(std::vector<int> items);
  /// The review of earlier items.
  ReviewDrill& review() { return m_review; }
  bool clockRunning() const { return m_answerClock.running(); }
  int timeUpSound() const { return m_state.timeUpSound; }

 private:
  /// The step after a change of item or 小問: shows the next admitted 小問, or the whole answer
  /// when none is left.
  void advance();
  /// Gives the caret back to the answer box; nothing else happens.
  void stay();
  void after(AnswerFlow::After result);
  /// The target time of the present 小問.
  double targetSeconds() const;
  /// What every key does first: the time since the last one may have been rest.
  void activity();
  /// Makes POS the current item. False when the run has ended instead.
  bool dispPOS1(int POS);
  /// Goes to an item and shows what is to be asked there.
  void goToItem(int POS);
  void nextQuestion();
  void dispQuestion();
  void showSubQuestion();
  /// Shows the whole item and waits for Enter.
  void dispAnswerFull();
  void leaveConfirmation();
  /// Enter on the full answer: the next item, or before it the review that is due.
  void leaveFullAnswer();
  /// Takes away what tells of a question.
  void emptyQuestion();
  void emptyAreas();
  /// No to the question whether the run is to end.
  void exitRefused();
  void 回数カウント();

  RunState m_state;
  PracticeScreen& m_screen;
  RestTime m_restTime;
  RestingDialogs m_dialogs;
  Random& m_random;
  PracticeVoice m_voice;
  DamageGuard m_damage;
  AnswerFlow m_flow;
  AnswerClock m_answerClock;
  RunReport m_report;
  QuestionRequests m_printRequests;
  ReviewRing m_reviewRing;
  ReviewDrill m_review;
  MarkedText m_question;  ///< as it was last shown
  bool m_logShown = false;
  bool m_FK前問題 = false;  ///< F4 led here, and nothing was asked since
  Phase m_phase = Phase::asking;
  bool m_backToConditions = false;
};

}  // namespace tavoli
