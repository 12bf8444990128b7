// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/Readings.h"

#include <algorithm>

#include "data/CurrentRecord.h"
#include "data/Schema.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

namespace {

bool holdsJapanese(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) {
    return c.script() == QChar::Script_Han || c.script() == QChar::Script_Hiragana ||
           c.script() == QChar::Script_Katakana;
  });
}

/// The texts of an item that may be read aloud in Japanese.
QStringList textsOf(const ContentRow& row, TableCode code) {
  const CurrentRecord record = ParseRecord(row.record, row.key, code);
  QStringList texts;
  if (record.sentence)
    texts = parseMarks(record.問題文).text.split(u'\n');
  else
    for (int k = 1; k <= record.小問数; ++k) texts.append(parseMarks(record.at(k).日本語).text);
  return texts;
}

}  // namespace

std::vector<ContentReading> readingsOf(const std::vector<ContentTable>& tables,
                                       const KanaReading& reading) {
  std::vector<ContentReading> readings;
  for (const ContentTable& table : tables) {
    const TableCode code = table.name == tableBDIC ? TableCode::sentences : TableCode::first;
    for (const ContentRow& row : table.rows)
      for (const QString& text : textsOf(row, code))
        if (holdsJapanese(text)) readings.push_back({row.key, text, reading.readAsText(text)});
  }
  return readings;
}

}  // namespace tavoli
