// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

#include "conditions/AutoPlaySettings.h"
#include "conditions/PracticeConditions.h"
#include "data/LearnerFiles.h"
#include "practice/LearningTables.h"
#include "practice/PracticeSet.h"
#include "progress/ProgressCounters.h"
#include "progress/RunClock.h"

namespace tavoli {

class Clock;
class Files;

/// How a run ended.
struct RunResult {
  int POS;  ///< where
  const CourseChoice& course;
  PracticeConditions conditions;
  const AutoPlaySettings& settings;
  RunClock& times;
  /// What was counted before the run and in it, without its time and its effect on the memory.
  ProgressCounters counted;
};

/// A run as it was stored.
struct StoredRun {
  PracticeConditions conditions;
  ProgressCounters progress;
  QStringList notices;  ///< what the learner is to be told, a box each
};

/// Stores what a run has changed when it is over. It opens no boxes: nobody may be there.
class RunEnd {
 public:
  /// Asked when the tables cannot be written, with what there is to tell before: whether to try
  /// again.
  using Retry = std::function<bool(const QStringList& notices, const QString& question)>;

  RunEnd(const LearnerFiles& learner, Files& files, const Clock& clock);

  /// Writes all shown items, the conditions, the course, the progress and the settings in one
  /// transaction, closes the tables, and adds to the history and the past conditions. Nothing when
  /// nothing was stored in the end.
  [[nodiscard]] std::optional<StoredRun> saveRunEnd(std::unique_ptr<LearningTables> tables,
                                                    const PracticeSet& set, const RunResult& run,
                                                    const Retry& retry);

 private:
  /// Adds the run's line to the two texts, and tells where that failed.
  [[nodiscard]] QStringList appendTexts(const RunResult& run, const PracticeConditions& conditions,
                                        const QString& progressRecord);

  const LearnerFiles& m_learner;
  Files& m_files;
  const Clock& m_clock;
};

}  // namespace tavoli
