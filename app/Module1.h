// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "conditions/PracticeConditions.h"
#include "data/LearnerFiles.h"
#include "progress/ProgressCounters.h"
#include "progress/RunClock.h"

namespace tavoli {

class Clock;
class Files;

/// What the screens share from program start to program end.
struct Module1 {
  QString applicationFolder;
  QString deliveredContent;  ///< a personal database; empty where nothing came with the program
  QString dbPathDefault;     ///< the folder of the working copies
  QString dbPath;            ///< the folder where the learner's files are placed
  LearnerFiles learner;
  CourseChoice course;
  PracticeConditions conditions;
  RunClock clock;
  ProgressCounters progress;
  /// The first login of a later month: the database is to be backed up.
  bool backupDue = false;
};

/// Program start: the shared state at its starting values, the folders made where they are missing.
Module1 startModule1(Files& files, const Clock& clock, const QString& applicationFolder);

}  // namespace tavoli
