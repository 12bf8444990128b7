#pragma once

#include <memory>
#include <optional>

#include "conditions/PracticeConditions.h"
#include "data/LearnerFiles.h"
#include "practice/LearningTables.h"
#include "practice/PracticeLoop.h"
#include "practice/PracticeSet.h"
#include "practice/PracticeSetLoader.h"

namespace tavoli {

class Clock;
class Dialogs;
class Files;
class PracticeScreen;
class Random;

/// One practice run from the opening of the tables to the saving of what it changed.
class PracticeRun {
 public:
  PracticeRun(const LearnerFiles& learner, const CourseChoice& course,
              PracticeConditions& conditions, Files& files, const Clock& clock, Random& random,
              Dialogs& dialogs);
  ~PracticeRun();

  /// Loads the set and shows the first question on `screen`. False when there is nothing to
  /// practise; the learner has then been told, and nothing is ever saved.
  bool open(PracticeScreen& screen, LoadProgress& progress);

  PracticeLoop& loop() { return *m_loop; }

  /// Stores the run, once, when its end was confirmed. False when the learner gave up storing it.
  bool close();

 private:
  const LearnerFiles& m_learner;
  const CourseChoice& m_course;
  PracticeConditions& m_conditions;
  Files& m_files;
  const Clock& m_clock;
  Random& m_random;
  Dialogs& m_dialogs;
  std::unique_ptr<LearningTables> m_tables;
  PracticeSet m_set;
  std::unique_ptr<PracticeLoop> m_loop;
};

}  // namespace tavoli
