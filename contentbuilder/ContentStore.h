// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "contentbuilder/ContentNotes.h"
#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "data/Database.h"

// The way between the content's tables and a personal database.
namespace tavoli {

/// Fills an empty database with the tables, every item new to the learner, and with the notes.
/// False when it could not be written; it then holds nothing.
[[nodiscard]] bool storeContent(const std::vector<ContentTable>& tables, const ContentNotes& notes,
                                Database& database);

/// Writes a database back as sources, divided and headed as those it was made from. Reserved rows
/// are left out. A row that no source can express is left out too, and named in `problems` by its
/// table and key; `file` is what the database is called there.
std::vector<SourceFile> dumpContent(Database& database, const QString& file, Problems& problems);

}  // namespace tavoli
