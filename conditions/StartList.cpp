// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/StartList.h"

#include "conditions/PracticeConditions.h"
#include "data/Schema.h"
#include "data/Text.h"

namespace tavoli {

QStringList lessonStarts(const QStringList& lessonLines) {
  constexpr int sentenceEntryWidth = 7;
  QStringList starts;
  for (const QString& line : lessonLines) {
    if (line.startsWith(u'*')) continue;
    starts.append(isSentenceEntry(line) ? line.left(sentenceEntryWidth) : trimBlanks(line));
  }
  return starts;
}

std::optional<QStringList> wordStarts(Database& database, const QString& table) {
  const auto rows = database.OpenRecordset(table, {field英語});
  if (!rows) return std::nullopt;
  QStringList starts;
  for (; rows->hasRow(); rows->MoveNext()) {
    const QString key = rows->key();
    const bool atEnd = key == rowContentEnd;
    if (!isReservedKey(key) || atEnd) starts.append(key);
    if (atEnd) break;
  }
  return starts;
}

QStringList sentenceStarts(Database& database, Course COURSE) {
  constexpr int headWidth = 10;
  QStringList starts;
  const auto rows = database.OpenRecordset(tableBDIC, {field問正コ});
  if (!rows) return starts;
  const QString& from = factsOf(COURSE).firstStart;
  if (!from.isEmpty()) rows->Seek(SeekOp::AtOrAfter, from);
  for (; rows->hasRow() && !isReservedKey(rows->key()); rows->MoveNext()) {
    const QString text = rows->text(field問正コ);
    starts.append(sentencePlaces(rows->key()) + sentenceMark +
                  text.left(text.indexOf(fieldMark)).left(headWidth));
  }
  return starts;
}

}  // namespace tavoli
