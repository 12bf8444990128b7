#pragma once

#include <QDateTime>
#include <QString>

#include "conditions/PracticeConditions.h"
#include "data/LearnerFiles.h"

namespace tavoli {

/// The clock of a run.
struct RunClock {
  QDateTime 開始時刻;
  QDateTime 終了時刻;
  /// The last moment of activity; gaps from here on count as rest.
  QDateTime restClock;
  int 休憩時間 = 0;  ///< seconds
};

/// What the screens share from program start to program end.
struct Module1 {
  QString applicationFolder;
  QString dbPathDefault;  ///< the folder of the working copies
  QString dbPath;         ///< the folder where the learner's files are placed
  LearnerFiles learner;
  CourseChoice course;
  PracticeConditions conditions;
  RunClock clock;
  /// The first login of a later month: the database is to be backed up.
  bool backupDue = false;
};

}  // namespace tavoli
