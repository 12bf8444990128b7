// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/ContentStore.h"

#include <algorithm>

#include "contentbuilder/ContentSources.h"
#include "contentbuilder/SentenceSources.h"
#include "contentbuilder/SourceText.h"
#include "contentbuilder/WordSources.h"
#include "data/CurrentRecord.h"
#include "data/Schema.h"
#include "data/Text.h"

namespace tavoli {

namespace {

bool addRow(TableCursor& rows, const QString& table, const ContentRow& row) {
  rows.AddNew();
  rows.setValue(keyField(table), row.key);
  rows.setValue(field記憶, QString(stored(MemoryState::全然)));
  rows.setValue(field回数, QStringLiteral("00"));
  rows.setValue(recordField(table), row.record);
  rows.setValue(field読上, row.読上.isEmpty() ? Field() : row.読上);
  if (table != tableBDIC) rows.setValue(fieldレベル, row.レベル);
  return rows.Update();
}

bool storeTable(const ContentTable& table, Database& database) {
  if (!database.createTable(table.name)) return false;
  const auto rows = database.OpenRecordset(table.name);
  if (!rows) return false;
  const ContentRow end{rowContentEnd, QStringLiteral("00"), QStringLiteral(""), QString()};
  return std::all_of(table.rows.begin(), table.rows.end(),
                     [&](const ContentRow& row) { return addRow(*rows, table.name, row); }) &&
         (table.name == tableBDIC || addRow(*rows, table.name, end));
}

std::vector<SourceLayout> layoutsIn(Database& database) {
  std::vector<SourceLayout> layouts;
  const ContentNotes notes = notesIn(database);
  for (auto note = notes.cbegin(); note != notes.cend(); ++note)
    if (!tableOfSource(note.key()).isEmpty())
      layouts.push_back({note.key(), note.value().split(u'\n')});
  return layouts;
}

/// Writes one table back.
class TableDump {
 public:
  TableDump(QString table, QString file, Problems& problems)
      : m_table(std::move(table)), m_file(std::move(file)), m_problems(problems) {}

  /// `rows` is null when the table could not be opened.
  void walk(TableCursor* rows) {
    for (; rows && !rows->atEOF(); rows->MoveNext()) {
      if (isReserved(rows->key()) || add(*rows)) continue;
      complain(QStringLiteral("%1の「%2」は記録が壊れているか、内容のファイルに書けない値が"
                              "あるので、書き出しませんでした。")
                   .arg(m_table, rows->key()));
    }
    if (!rows || rows->failed()) {
      complain(QStringLiteral("%1を終わりまで読めませんでした。データベースが壊れていないか"
                              "調べてください。")
                   .arg(m_table));
    }
  }

  /// The items go where the layouts have them, the others into a source of their own.
  std::vector<SourceFile> sources(const std::vector<SourceLayout>& layouts) {
    for (const SourceLayout& layout : layouts)
      if (tableOfSource(layout.file) == m_table) arrange(layout);
    if (m_table == tableBDIC) {
      for (const CourseFacts& course : courses())
        arrangeRest(sentencesFileName(course.name),
                    [&](const QString& key) { return course.holds(key); });
    } else {
      if (m_sources.empty()) bytesOf(wordsFileName(m_table));
      arrangeRest(wordsFileName(m_table), [](const QString&) { return true; });
    }
    return std::move(m_sources);
  }

 private:
  bool isReserved(const QString& key) const {
    if (m_table != tableBDIC) return isReservedKey(key);
    return key.startsWith(QStringLiteral("zzz"), Qt::CaseInsensitive);
  }

  void complain(const QString& message) { m_problems.push_back({m_file, 0, message}); }

  QByteArray& bytesOf(const QString& file) {
    const auto made = std::find_if(m_sources.begin(), m_sources.end(),
                                   [&](const SourceFile& source) { return source.name == file; });
    if (made != m_sources.end()) return made->bytes;
    m_sources.push_back({file, {}});
    if (m_table != tableBDIC) m_sources.back().bytes = wordsHeader.toUtf8() + '\n';
    return m_sources.back().bytes;
  }

  void arrange(const SourceLayout& layout) {
    QByteArray& bytes = bytesOf(layout.file);
    bool underHeading = bytes.isEmpty();
    for (const QString& line : layout.lines) {
      const bool heading = line.startsWith(u'#');
      if (!heading && !m_texts.contains(line)) continue;
      if (m_table == tableBDIC && !underHeading) bytes += '\n';
      bytes += heading ? line.toUtf8() + '\n' : m_texts.take(line);
      underHeading = heading;
    }
  }

  template <typename Belongs>
  void arrangeRest(const QString& file, const Belongs& belongs) {
    SourceLayout rest{file, {}};
    for (const QString& key : std::as_const(m_keys))
      if (m_texts.contains(key) && belongs(key)) rest.lines.append(key);
    if (!rest.lines.isEmpty()) arrange(rest);
  }

  /// False when the row does not read back from its source as it stands.
  bool add(const TableCursor& rows) {
    const bool sentence = m_table == tableBDIC;
    CurrentRecord record = ParseRecord(rows.text(recordField(m_table)), rows.key(),
                                       sentence ? TableCode::sentences : TableCode::first);
    if (!record.complete) return false;
    for (SubQuestion& s : record.小問) {
      s.記 = MemoryState::全然;
      s.小問回数 = 0;
    }
    ContentRow row{rows.key(), QString(), packRecord(record), rows.text(field読上)};
    return sentence ? addSentence(row, record) : addWord(row, record, rows.text(fieldレベル));
  }

  bool addSentence(const ContentRow& row, const CurrentRecord& record) {
    for (const CourseFacts& course : courses()) {
      if (!course.holds(row.key)) continue;
      const QByteArray block = sentenceSource(row, record).toUtf8();
      Problems problems;
      const auto source = readSource({QString(), block}, problems);
      if (!source || parseSentences(*source, course, m_places, problems) != std::vector{row} ||
          !problems.empty())
        return false;
      return take(row.key, block);
    }
    return false;
  }

  bool addWord(ContentRow row, const CurrentRecord& record, const QString& level) {
    row.レベル = level.rightJustified(2, u'0');
    const QByteArray header = wordsHeader.toUtf8() + '\n';
    const QByteArray line = wordSource(row, record).toUtf8();
    Problems problems;
    const auto source = readSource({QString(), header + line}, problems);
    if (!source || parseWords(*source, m_places, problems) != std::vector{row} || !problems.empty())
      return false;
    return take(row.key, line);
  }

  bool take(const QString& key, const QByteArray& text) {
    m_keys.append(key);
    m_texts.insert(key, text);
    return true;
  }

  QString m_table;
  QString m_file;
  Problems& m_problems;
  std::vector<SourceFile> m_sources;
  KeyPlaces m_places;
  QStringList m_keys;                  ///< in the table's order
  QHash<QString, QByteArray> m_texts;  ///< of the items that stand in no source yet
};

}  // namespace

bool storeContent(const std::vector<ContentTable>& tables, const ContentNotes& notes,
                  Database& database) {
  return database.write([&] {
    return std::all_of(tables.begin(), tables.end(),
                       [&](const ContentTable& table) { return storeTable(table, database); }) &&
           storeNotes(notes, database);
  });
}

std::vector<SourceFile> dumpContent(Database& database, const QString& file, Problems& problems) {
  std::vector<SourceFile> sources;
  const QStringList tables = database.TableDefs();
  if (!tables.contains(tableBDIC)) {
    problems.push_back(
        {file, 0, QStringLiteral("個人データベースではありません。ファイルを確かめてください。")});
    return sources;
  }
  const std::vector<SourceLayout> layouts = layoutsIn(database);
  for (const QString& table : tables) {
    const bool dictionary = table == tableJTDIC || table == tableSTDIC || isSpecialTable(table);
    if (table != tableBDIC && !dictionary) continue;
    if (dictionary && tableOfSource(wordsFileName(table)) != table) {
      problems.push_back({file, 0,
                          QStringLiteral("表%1は、その名前をファイルに付けられないので、"
                                         "書き出しませんでした。")
                              .arg(table)});
      continue;
    }
    TableDump dump(table, file, problems);
    dump.walk(database.OpenRecordset(table).get());
    const std::vector<SourceFile> more = dump.sources(layouts);
    sources.insert(sources.end(), more.begin(), more.end());
  }
  return sources;
}

}  // namespace tavoli
