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
      m_database->createTable(table);
      if (table != tableBDIC) addWord(table, rowContentEnd, QString());
    }
  }

  const QString& path() const { return m_path; }
  QString folder() const { return m_folder.path(); }
  Database& database() { return *m_database; }
  void close() { m_database.reset(); }
  void open() {
    int errorNumber = 0;
    openDatabase(m_path, m_database, errorNumber);
  }

  void addWord(const QString& table, const QString& 英語, const QString& record,
               QChar memory = memory全然, int level = 0) {
    auto rows = m_database->OpenRecordset(table);
    rows->AddNew();
    rows->setValue(field英語, 英語);
    rows->setValue(fieldレベル, digits(level, 2));
    rows->setValue(field記憶, QString(memory));
    rows->setValue(field回数, u"00"_s);
    rows->setValue(field発同日コ, record);
    rows->Update();
  }

  void addSentence(const QString& 文番, const QString& record, QChar memory = memory全然) {
    auto rows = m_database->OpenRecordset(tableBDIC);
    rows->AddNew();
    rows->setValue(field文番, 文番);
    rows->setValue(field記憶, QString(memory));
    rows->setValue(field回数, u"00"_s);
    rows->setValue(field問正コ, record);
    rows->Update();
  }

  /// A field of the row with that key, read through a cursor of its own.
  Field stored(const QString& table, const QString& key, const QString& field) {
    auto rows = m_database->OpenRecordset(table);
    rows->Seek(SeekOp::Equal, key);
    return rows->value(field);
  }

 private:
  QTemporaryDir m_folder;
  QString m_path;
  std::optional<Database> m_database;
};

/// The packed record of a word: meanings at 全然 with count 00 unless `code` says otherwise.
inline QString wordRecord(const QStringList& meanings, const QStringList& synonyms = {},
                          QChar code = memory全然) {
  CurrentRecord record;
  record.同 = synonyms;
  for (const QString& meaning : meanings) {
    SubQuestion s;
    s.記 = code;
    s.日本語 = meaning;
    record.小問.push_back(s);
  }
  return packRecord(record);
}

/// The packed record of a sentence: each answer without alternatives, or with the packed ones.
inline QString sentenceRecord(const QString& 問題文, const QStringList& answers,
                              const QString& alternatives = u"00000000"_s,
                              QChar code = memory全然) {
  CurrentRecord record;
  record.sentence = true;
  record.問題文 = 問題文;
  for (const QString& answer : answers) {
    SubQuestion s;
    s.記 = code;
    s.正 = answer;
    s.同 = alternatives;
    record.小問.push_back(s);
  }
  return packRecord(record);
}

}  // namespace tavoli::test
