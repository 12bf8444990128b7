// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

/// So many lines of past conditions are kept.
inline constexpr int maxPastConditions = 100;

/// Where a learner's files lie. All work happens on the working copies; the placed ones are
/// elsewhere only when the learner's data were moved there.
struct LearnerFiles {
  QString userId;
  QString dbFilePlaced, dbFileWork;
  QString condFilePlaced, condFileWork;
  QString historyFilePlaced, historyFileWork;
  QString backupFile;  ///< in the placed folder
  bool placedElsewhere = false;
};

/// Whether two paths lead to the same folder, links resolved.
bool isSameFolder(const QString& a, const QString& b);

/// The names of the files of learner `userId`. The database has no extension when such a file is
/// in the placed folder, else ".mdb".
LearnerFiles learnerFiles(const QString& userId, const QString& dbPath,
                          const QString& dbPathDefault);

}  // namespace tavoli
