// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "progress/ProgressCounters.h"
#include "progress/RunClock.h"

namespace tavoli {

class Clock;
class Database;
class Dialogs;
class TableCursor;

/// Whose progress it is, and the run that is booked to it.
struct ProgressOwner {
  const QString& userId;
  Course COURSE;
  RunClock& times;
};

/// Ends the run's time now and adds the seconds that were learnt to the course's month. When the
/// clock was put back the run adds nothing, and what the learner is to be told is returned.
[[nodiscard]] QString bookTime(const ProgressOwner& owner, ProgressCounters& counters,
                               const Clock& clock);

/// Stores the record in the learner's row, which is made where it is missing. False when it cannot
/// be stored.
[[nodiscard]] bool saveProgressRecord(TableCursor& rsBDIC, const QString& progressRecord);

/// Reads the learner's figures. At the first use the tables are counted and the row is made; in a
/// later month than that of the last run the figures roll over and `backupDue` is set. False when
/// the figures could not be read or what changed could not be stored; the learner's row is then
/// what it was.
[[nodiscard]] bool loadProgress(Database& database, const ProgressOwner& owner, const Clock& clock,
                                Dialogs& dialogs, ProgressCounters& counters, bool& backupDue);

/// Counts the memory figures of the learner's row again; all else in the row stays. A learner
/// without a row has it counted at the first use. False when it could not be read or stored.
[[nodiscard]] bool recountMemory(Database& database);

}  // namespace tavoli
