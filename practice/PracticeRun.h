// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>

#include "conditions/AutoPlaySettings.h"
#include "conditions/PracticeConditions.h"
#include "data/LearnerFiles.h"
#include "lookup/Dictionary.h"
#include "practice/LearningTables.h"
#include "practice/PracticeLoop.h"
#include "practice/PracticeSet.h"
#include "practice/RunEnd.h"

namespace tavoli {

class Clock;
class Dialogs;
class Files;
class LoadProgress;
class Paper;
class PracticeScreen;
class ReviewScreen;
class Random;
class Speaker;

/// What a run works with.
struct RunServices {
  Files& files;
  const Clock& clock;
  Random& random;
  Dialogs& dialogs;
  Speaker& speaker;
  Paper& paper;
};

/// One practice run from the opening of the tables to the saving of what it changed, to which the
/// learner's progress belongs.
class PracticeRun {
 public:
  PracticeRun(const LearnerFiles& learner, const CourseChoice& course,
              const PracticeConditions& conditions, RunClock& times,
              const ProgressCounters& progress, const RunServices& services);
  ~PracticeRun();

  /// Opens the learner's tables. False when that cannot be done; the learner has then been told.
  [[nodiscard]] bool openTables();
  /// The dictionaries of the course to look words up in, from openTables() to close(); the practice
  /// and the review step through them each on its own.
  std::vector<Dictionary>& dictionaries() { return m_dictionaries; }
  std::vector<Dictionary>& reviewDictionaries() { return m_reviewDictionaries; }

  /// Loads the set and shows the first question on `screen`; the tables must be open. `startKey` is
  /// where the run starts, "000000" for the first item. False when there is nothing to practise;
  /// the learner has then been told, and nothing is ever saved.
  [[nodiscard]] bool open(PracticeScreen& screen, ReviewScreen& reviewScreen,
                          LoadProgress& progress, const QString& startKey);

  PracticeLoop& loop() { return *m_loop; }
  /// Stores the run, once, when its end was confirmed; the dictionaries go. Nothing when it was not
  /// stored in the end.
  [[nodiscard]] std::optional<StoredRun> close(const RunEnd::Retry& retry);
  /// Prints what was requested; returns what the learner is to be told, a box each.
  [[nodiscard]] QStringList printRequests();

 private:
  const LearnerFiles& m_learner;
  CourseChoice m_course;
  PracticeConditions m_conditions;  ///< as the run began
  RunClock& m_times;
  ProgressCounters m_progress;
  RunServices m_services;
  std::unique_ptr<LearningTables> m_tables;
  std::vector<Dictionary> m_dictionaries;
  std::vector<Dictionary> m_reviewDictionaries;
  PracticeSet m_set;
  AutoPlaySettings m_settings;
  std::unique_ptr<PracticeLoop> m_loop;
};

}  // namespace tavoli
