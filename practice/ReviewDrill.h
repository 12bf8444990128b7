// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "practice/AnswerClock.h"
#include "practice/EntryJudge.h"
#include "practice/RunState.h"

namespace tavoli {

class Dialogs;
class RestTime;
class ReviewScreen;

/// What the review works with.
struct ReviewServices {
  ReviewScreen& screen;
  Dialogs& dialogs;
  const Clock& clock;
  Speaker& speaker;
  RestTime& restTime;  ///< the run's: what is done here is activity too
  std::function<void()> backToPractice;
  std::function<void()> exitRun;
};

/// Asks a batch of finished items again. A rehearsal only: it changes no memory state, no count and
/// no record.
class ReviewDrill {
 public:
  /// `run` is where the practice stands; it waits until the review is over.
  ReviewDrill(const RunState& run, ReviewServices services);

  /// Asks the items, indices in the run's set, one after the other.
  void startReview(std::vector<int> reviewList);
  /// The run ends: nothing is asked any more.
  void stop();

  /// Any key in the answer box: the messages about the last entry disappear.
  void keyPressed();
  /// Enter: judges what was typed, or leaves the full answer when that is on show.
  void enter(const QString& typed);
  /// The answer box has lost the focus: a sign of life, like any key.
  void answerBoxLeft();
  /// A click into the answer box: leaves the full answer when that is on show.
  void answerBoxClicked();
  /// F1: shows the answer, which is then to be typed as often as the learner has set.
  void showAnswer();
  /// F6 or the window's close button: asks, and ends the run on Yes.
  void requestExit();
  /// F11: the next item, whatever is left of this one.
  void nextReviewItem();
  /// To be called once a second.
  void tick();

  /// The item that is asked, and its 小問, from 1.
  int reviewPOS() const { return m_reviewPOS; }
  int reviewPOS1() const { return m_reviewPOS1; }
  const CurrentRecord& record() const { return m_record; }
  /// The full answer is on show, Enter is awaited.
  bool nextDue() const { return m_nextDue; }
  /// The answer box holds a sentence that is to be corrected.
  bool correcting() const;

 private:
  void showReviewQuestion();
  /// Asks the present 小問, from its given start and with a clock of its own.
  void ask();
  void askAgain();
  /// Shows that the 小問 `POS1` is asked.
  void showSubQuestion(int POS1);
  void right(Verdict verdict);
  void wrong();
  /// Done with this 小問: asks the next one, or shows the whole item until Enter.
  void leaveSubQuestion();
  void speakAnswer();
  void emptyAreas();
  QString answer() const;

  const RunState& m_run;
  ReviewServices m_services;
  ReviewScreen& m_screen;
  EntryJudge m_judge;
  AnswerClock m_answerClock;
  std::vector<int> m_reviewList;
  size_t m_reviewFrom = 0;  ///< what of the list comes next, from 0
  CurrentRecord m_record;
  MarkedText m_question;  ///< as it is shown
  AnsweredSubQuestions m_answered;
  int m_reviewPOS = 0;
  int m_reviewPOS1 = 1;
  int m_reviewTries = 0;            ///< wrong entries on this 小問
  int m_requiredDone = 0;           ///< right entries since F1
  bool m_answerAsked = false;       ///< F1 was used: the answer must be typed again
  bool m_nextDue = false;           ///< the full answer is on show, Enter is awaited
  bool m_reviewStopSpeech = false;  ///< the first key stops the voice
};

}  // namespace tavoli
