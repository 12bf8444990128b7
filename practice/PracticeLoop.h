#pragma once

#include <QString>

#include "conditions/PracticeConditions.h"
#include "data/CurrentRecord.h"
#include "judge/Comparison.h"
#include "practice/PracticeSet.h"
#include "practice/QuestionText.h"

namespace tavoli {

class Dialogs;
class PracticeScreen;

/// Asks one 小問 after the other: shows it, judges what was typed, moves its memory state, and
/// walks on through the items until the learner ends the run.
class PracticeLoop {
 public:
  PracticeLoop(PracticeSet& set, const CourseChoice& course, const PracticeConditions& conditions,
               PracticeScreen& screen, Dialogs& dialogs);

  /// Shows the first question.
  void start();

  /// Enter: judges what was typed, or leaves the full answer when that is on show.
  void enter(const QString& typed);

  /// F6 or the window's close button: asks, and closes the screen on Yes.
  void requestExit();
  /// Ends the run without a question.
  void exitAtOnce();

  bool exitConfirmed() const { return m_exitConfirmed; }
  /// The present item and 小問, from 1.
  int POS() const { return m_POS; }
  int POS1() const { return m_POS1; }
  bool 確認中() const { return m_確認中; }
  /// The answer box holds a sentence that is to be corrected.
  bool correcting() const { return isCorrection(m_record); }

 private:
  /// The step after a change of item or 小問: shows the next admitted 小問, or the whole answer
  /// when none is left.
  void advance();
  /// Makes POS the current item. False when the run has ended instead.
  bool dispPOS1();
  /// Moves POS1 to the next 小問 whose memory state is admitted. False when none is left; POS1 then
  /// stands behind the last one.
  bool fnNextExist();
  void nextQuestion();
  void dispQuestion();
  /// Shows the whole item and waits for Enter.
  void dispAnswerFull();
  void judge(const QString& typed);
  void answeredRight();
  void 回数カウント();

  PracticeSet& m_set;
  const CourseChoice& m_course;
  const PracticeConditions& m_conditions;
  PracticeScreen& m_screen;
  Dialogs& m_dialogs;
  ComparisonSettings m_comparison;

  CurrentRecord m_record;
  int m_POS = 1;
  int m_POS1 = 1;
  int m_shownCount = 0;  ///< how many 小問 of this item have been asked
  bool m_確認中 = false;
  bool m_exitConfirmed = false;
};

}  // namespace tavoli
