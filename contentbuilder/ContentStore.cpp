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

QString recordField(const QString& table) {
  return table == tableBDIC ? field問正コ : field発同日コ;
}

bool addRow(TableCursor& rows, const QString& table, const ContentRow& row) {
  rows.AddNew();
  rows.setValue(keyField(table), row.key);
  rows.setValue(field記憶, QString(memory全然));
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

/// Writes one table back.
class TableDump {
 public:
  TableDump(QString table, QString file, Problems& problems)
      : m_table(std::move(table)), m_file(std::move(file)), m_problems(problems) {
    if (m_table == tableBDIC) {
      for (const SentenceCourse& course : sentenceCourses)
        m_sources.push_back({sentencesFileName(course.name), {}});
    } else {
      m_sources.push_back({wordsFileName(m_table), wordsHeader.toUtf8() + '\n'});
    }
  }

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

  const std::vector<SourceFile>& sources() const { return m_sources; }

 private:
  bool isReserved(const QString& key) const {
    if (m_table != tableBDIC) return isReservedKey(key);
    return key.startsWith(QStringLiteral("zzz"), Qt::CaseInsensitive);
  }

  void complain(const QString& message) { m_problems.push_back({m_file, 0, message}); }

  /// False when the row does not read back from its source as it stands.
  bool add(const TableCursor& rows) {
    const bool sentence = m_table == tableBDIC;
    CurrentRecord record = ParseRecord(rows.text(recordField(m_table)), rows.key(),
                                       sentence ? tableOfSentences : QChar());
    if (!record.complete) return false;
    for (SubQuestion& s : record.小問) {
      s.記 = memory全然;
      s.小問回数 = 0;
    }
    ContentRow row{rows.key(), QString(), packRecord(record), rows.text(field読上)};
    return sentence ? addSentence(row, record) : addWord(row, record, rows.text(fieldレベル));
  }

  bool addSentence(const ContentRow& row, const CurrentRecord& record) {
    for (size_t i = 0; i < sentenceCourses.size(); ++i) {
      const SentenceCourse& course = sentenceCourses[i];
      if (!course.holds(row.key)) continue;
      QByteArray& bytes = m_sources[i].bytes;
      const QByteArray block = sentenceSource(row, record).toUtf8();
      Problems problems;
      const auto source = readSource({QString(), block}, problems);
      if (!source || parseSentences(*source, course, m_places, problems) != std::vector{row} ||
          !problems.empty())
        return false;
      if (!bytes.isEmpty()) bytes += '\n';
      bytes += block;
      return true;
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
    m_sources.front().bytes += line;
    return true;
  }

  QString m_table;
  QString m_file;
  Problems& m_problems;
  std::vector<SourceFile> m_sources;
  KeyPlaces m_places;
};

}  // namespace

bool storeContent(const std::vector<ContentTable>& tables, Database& database) {
  return database.write([&] {
    return std::all_of(tables.begin(), tables.end(),
                       [&](const ContentTable& table) { return storeTable(table, database); });
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
  for (const QString& table : tables) {
    const bool content =
        table == tableBDIC || table == tableJTDIC || table == tableSTDIC || isSpecialTable(table);
    if (!content) continue;
    TableDump dump(table, file, problems);
    dump.walk(database.OpenRecordset(table).get());
    sources.insert(sources.end(), dump.sources().begin(), dump.sources().end());
  }
  return sources;
}

}  // namespace tavoli
