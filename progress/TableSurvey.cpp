#include "progress/TableSurvey.h"

#include "data/Schema.h"
#include "data/TableCursor.h"

namespace tavoli {

void surveyWordTable(TableCursor& rows, Three& memory) {
  memory = {};
  for (rows.MoveFirst(); rows.hasRow() && !isReservedKey(rows.key()); rows.MoveNext())
    if (const auto place = memoryPlace(rows.text(field記憶))) ++memory[*place];
}

void surveySentences(TableCursor& rsBDIC, ByLevel& memory) {
  memory = {};
  const QString end = QStringLiteral("zzz");
  for (rsBDIC.MoveFirst(); rsBDIC.hasRow(); rsBDIC.MoveNext()) {
    const QString 文番 = rsBDIC.key();
    if (文番.startsWith(end, Qt::CaseInsensitive)) break;
    const std::optional<Level> level = sentenceLevel(文番);
    const auto place = memoryPlace(rsBDIC.text(field記憶));
    if (level && place) ++memory[*level][*place];
  }
}

}  // namespace tavoli
