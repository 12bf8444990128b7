// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/TableSurvey.h"

#include "data/Database.h"
#include "data/Schema.h"

namespace tavoli {

bool surveyWordTable(const Database& database, const QString& table, Three& memory) {
  memory = {};
  return database.scanCodes(table, field記憶, [&](char, char code) {
    if (const auto place = memoryPlace(codeOf<MemoryState>(QChar::fromLatin1(code))))
      ++memory[*place];
  });
}

bool surveySentences(const Database& database, ByLevel& memory) {
  memory = {};
  return database.scanCodes(tableBDIC, field記憶, [&](char initial, char code) {
    const auto level = sentenceLevel(QChar::fromLatin1(initial));
    const auto place = memoryPlace(codeOf<MemoryState>(QChar::fromLatin1(code)));
    if (level && place) ++memory[*level][*place];
  });
}

void recountSpecialTable(const QString& dbFileWork, const QString& table,
                         ProgressCounters& counters) {
  std::optional<Database> database = openDatabase(dbFileWork).database;
  Three memory{};
  if (database && surveyWordTable(*database, table, memory)) counters.記憶単熟[専門] = memory;
}

}  // namespace tavoli
