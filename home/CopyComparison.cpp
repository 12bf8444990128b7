// SPDX-License-Identifier: GPL-3.0-or-later

#include "home/CopyComparison.h"

#include "data/Database.h"
#include "data/Schema.h"

namespace tavoli {

CopyPast pastOf(const QString& path) {
  CopyPast past;
  std::optional<Database> database = peekDatabase(path);
  if (!database) return past;
  past.descent = readDescent(*database);
  const auto rows = database->OpenRecordset(tableBDIC, {field問正コ});
  if (!rows || past.descent) return past;
  for (const QString& row : {rowPassword, rowDescent}) {
    rows->Seek(SeekOp::Equal, row);
    if (rows->failed() || !rows->NoMatch()) return past;
  }
  past.used = false;
  return past;
}

bool holdsAllOf(const Descent& newer, const Descent& older) {
  for (auto machine = older.begin(); machine != older.end(); ++machine) {
    const Change change = newer.value(machine.key());
    if (change.number < machine->number) return false;
    if (change.number == machine->number && change.token != machine->token) return false;
  }
  return true;
}

CopyRelation compareCopies(const CopyPast& work, const CopyPast& placed, bool sameContent) {
  if (sameContent) return CopyRelation::Same;
  if (!work.used) return CopyRelation::WorkOlder;
  if (!placed.used) return CopyRelation::PlacedOlder;
  if (!work.descent || !placed.descent) return CopyRelation::Diverged;
  const bool workOlder = holdsAllOf(*placed.descent, *work.descent);
  const bool placedOlder = holdsAllOf(*work.descent, *placed.descent);
  if (workOlder == placedOlder) return CopyRelation::Diverged;
  return workOlder ? CopyRelation::WorkOlder : CopyRelation::PlacedOlder;
}

}  // namespace tavoli
