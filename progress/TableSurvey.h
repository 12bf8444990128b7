// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "progress/ProgressCounters.h"

namespace tavoli {

class Database;

/// Counts the rows of a dictionary again by their memory state, up to its reserved rows. A row
/// whose state is none counts nowhere, nor does what cannot be read. False when the table could not
/// be read to its end.
[[nodiscard]] bool surveyWordTable(const Database& database, const QString& table, Three& memory);

/// The same for the sentences of each level.
[[nodiscard]] bool surveySentences(const Database& database, ByLevel& memory);

/// Opens the learner's database and counts a specialist dictionary again. When it cannot be read
/// the counts stay what they were.
void recountSpecialTable(const QString& dbFileWork, const QString& table,
                         ProgressCounters& counters);

}  // namespace tavoli
