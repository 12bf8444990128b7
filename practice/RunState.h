#pragma once

#include "conditions/PracticeConditions.h"
#include "data/CurrentRecord.h"
#include "judge/Comparison.h"
#include "practice/PracticeSet.h"
#include "practice/QuestionView.h"

namespace tavoli {

/// Where a run stands. The loop owns it; the answer flow works on its present 小問.
struct RunState {
  PracticeSet& set;
  const CourseChoice& course;
  PracticeConditions& conditions;
  ComparisonSettings comparison;

  CurrentRecord record = {};  ///< the present item taken apart
  int POS = 1;                ///< the present item
  int POS1 = 1;               ///< the present 小問
  int wordShownCount = 0;     ///< how many 小問 of this item have been asked
  AnsweredSubQuestions answered = {};

  int tryCount = 0;     ///< entries on this 小問; a wrong one in the learning flow counts twice
  int repeatsLeft = 0;  ///< right entries still wanted before the next 小問
  bool answerShown = false;  ///< F1 was used on this 小問
  bool timeOver = false;     ///< the target time has passed on this 小問
  bool 復習する = false;     ///< the item was really answered
  bool FK次小問 = false;     ///< the last 小問 was left by F2, and nothing was answered since
  int timeUpSound = 2;       ///< when it passes: 0 none, 1 a beep, 2 the spoken sentence
  int speechKeyCount = 0;  ///< keys since the 小問 was shown; the voice stops at one of the first

  PracticeItem& item() { return set.item(POS); }
  SubQuestion& 小問() { return record.at(POS1); }
  /// A 小問 that is not 全然 is asked as a mini test.
  bool inMiniTest() const { return record.has(POS1) && record.記(POS1) != MemoryState::全然; }
  /// Folds what changed in the present record into the set. False when the record is damaged.
  [[nodiscard]] bool RewriteRecord() { return set.RewriteRecord(POS, record); }
};

}  // namespace tavoli
