#pragma once

#include <QTemporaryDir>

#include <optional>

#include "data/CurrentRecord.h"
#include "data/Database.h"
#include "data/Schema.h"
#include "data/Text.h"

namespace tavoli::test {

using namespace Qt::StringLiterals;

/// A personal database in a folder of its own, with BDIC, JTDIC, STDIC and BusinessTOEIC.
class TestStore {
 public:
  TestStore() : TestStore(u"TavoDB000.mdb"_s) {}
  explicit TestStore(const QString& fileName) : m_path(m_folder.filePath(fileName)) {
    m_database = createDatabase(m_path);
    for (const QString& table : {tableBDIC, tableJTDIC, tableSTDIC, u"BusinessTOEIC"_s}) {
      if (!m_database->createTable(table)) qFatal("no table");
      if (table != tableBDIC) addWord(table, rowContentEnd, QString());
    }
  }

  const QString& path() const { return m_path; }
  QString folder() const { return m_folder.path(); }
  Database& database() { return *m_database; }
  void close() { m_database.reset(); }
  void open() { m_database = openDatabase(m_path).database; }

  void addWord(const QString& table, const QString& 英語, const QString& record,
               MemoryState memory = MemoryState::全然, int level = 0) {
    add(table, {{field英語, 英語},
                {fieldレベル, digits(level, 2)},
                {field記憶, QString(tavoli::stored(memory))},
                {field回数, u"00"_s},
                {field発同日コ, record}});
  }

  void addSentence(const QString& 文番, const QString& record,
                   MemoryState memory = MemoryState::全然) {
    add(tableBDIC, {{field文番, 文番},
                    {field記憶, QString(tavoli::stored(memory))},
                    {field回数, u"00"_s},
                    {field問正コ, record}});
  }

  /// A field of the row with that key, read through a cursor of its own.
  Field stored(const QString& table, const QString& key, const QString& field) {
    auto rows = m_database->OpenRecordset(table);
    rows->Seek(SeekOp::Equal, key);
    return rows->value(field);
  }

 private:
  void add(const QString& table, const QList<std::pair<QString, QString>>& values) {
    const auto rows = m_database->OpenRecordset(table);
    rows->AddNew();
    for (const auto& [field, value] : values) rows->setValue(field, value);
    if (!rows->Update()) qFatal("no row");
  }

  QTemporaryDir m_folder;
  QString m_path;
  std::optional<Database> m_database;
};

/// The packed record of a word: meanings at 全然 with count 00 unless `code` says otherwise.
inline QString wordRecord(const QStringList& meanings, const QStringList& synonyms = {},
                          MemoryState code = MemoryState::全然) {
  QString record(u'|');
  for (const QString& synonym : synonyms) record += synonym + u'^';
  record += u'|';
  for (const QString& meaning : meanings) record += stored(code) + u"00"_s + meaning + u'^';
  return record + u'|';
}

/// The packed record of a sentence: each answer without alternatives, or with the packed ones.
inline QString sentenceRecord(const QString& 問題文, const QStringList& answers,
                              const QString& alternatives = u"00000000"_s,
                              MemoryState code = MemoryState::全然) {
  QString record = 問題文 + u'|';
  for (const QString& answer : answers)
    record += u"00"_s + stored(code) + digits(static_cast<int>(answer.size()), 3) + answer +
              alternatives + u'^';
  return record + u'|';
}

}  // namespace tavoli::test
