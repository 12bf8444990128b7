#pragma once

#include <memory>

#include "conditions/AutoPlaySettings.h"
#include "conditions/PracticeConditions.h"
#include "data/LearnerFiles.h"
#include "practice/LearningTables.h"
#include "practice/PracticeSet.h"
#include "progress/ProgressCounters.h"
#include "progress/RunClock.h"

namespace tavoli {

class Clock;
class Dialogs;
class Files;
class WorkingCopy;

/// How a run ended.
struct RunResult {
  int POS;  ///< where
  const CourseChoice& course;
  PracticeConditions& conditions;
  const AutoPlaySettings& settings;
  RunClock& times;
  /// What was counted before the run and in it, without its time and its effect on the memory.
  ProgressCounters counted;
  /// Another lesson is to follow: the working texts stay.
  bool backToConditions = false;
};

/// Stores what a run has changed when it is over.
class RunEnd {
 public:
  RunEnd(const LearnerFiles& learner, WorkingCopy& workingCopy, Files& files, const Clock& clock,
         Dialogs& dialogs);

  /// Stores the run and has the files carried home; gives the learner's
  /// progress as stored. When the tables cannot be written the learner may try again; nothing when
  /// nothing was stored in the end.
  [[nodiscard]] std::optional<ProgressCounters> closeRun(std::unique_ptr<LearningTables> tables,
                                                         PracticeSet& set, const RunResult& run);

 private:
  /// Writes all shown items, the conditions, the course, the progress and the settings in one
  /// transaction, closes the tables, and adds to the history and the past conditions.
  [[nodiscard]] std::optional<ProgressCounters> saveRunEnd(std::unique_ptr<LearningTables> tables,
                                                           PracticeSet& set, const RunResult& run);
  /// Adds the run's line to the two texts.
  void appendTexts(const RunResult& run, const QString& progressRecord);

  const LearnerFiles& m_learner;
  WorkingCopy& m_workingCopy;
  Files& m_files;
  const Clock& m_clock;
  Dialogs& m_dialogs;
};

}  // namespace tavoli
