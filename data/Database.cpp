// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Database.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "data/Descent.h"
#include "data/Schema.h"
#include "data/StoreLog.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int busyMilliseconds = 200;

int errorNumberOf(int sqliteCode) {
  switch (sqliteCode & 0xFF) {
    case SQLITE_OK:
      return openError::none;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return openError::locked;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return openError::notADatabase;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_READONLY:
    case SQLITE_IOERR:
      return openError::noAccess;
    default:
      return openError::engine;
  }
}

int numberOfPragma(SQLite::Database& database, const char* pragma) {
  return database.execAndGet(std::string("PRAGMA ") + pragma).getInt();
}

}  // namespace

Database::Database(std::unique_ptr<SQLite::Database> connection)
    : m_connection(std::move(connection)) {}
Database::~Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;

QStringList Database::TableDefs() const {
  QStringList names;
  try {
    SQLite::Statement tables(*m_connection,
                             "SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE "
                             "'sqlite_%' ORDER BY rowid");
    while (tables.executeStep()) names.append(QString::fromUtf8(tables.getColumn(0).getText()));
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << "list of tables:" << error.what();
    return {};
  }
  return names;
}

std::unique_ptr<TableCursor> Database::OpenRecordset(const QString& table,
                                                     const QStringList& fields) {
  try {
    if (!m_connection->tableExists(table.toStdString())) return nullptr;
    auto cursor = std::make_unique<TableCursor>(*m_connection, table, fields);
    return cursor->failed() ? nullptr : std::move(cursor);
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << table << error.what();
    return nullptr;
  }
}

bool Database::scanCodes(const QString& table, const QString& field,
                         const std::function<void(char initial, char code)>& visit) const {
  const auto asciiOrNone = [](char c) { return c > 0 ? c : '\0'; };
  try {
    if (!m_connection->tableExists(table.toStdString())) return false;
    const QString key = keyField(table);
    const QString sql = u"SELECT %1,%2 FROM %3 ORDER BY %4,%1,rowid"_s.arg(
        key, field, schema::quoted(table), schema::orderColumn);
    SQLite::Statement rows(*m_connection, sql.toStdString());
    while (rows.executeStep()) {
      const char* keyText = rows.getColumn(0).getText();
      if (isReservedKey(keyText)) break;
      const char* code = rows.getColumn(1).getText();
      visit(asciiOrNone(keyText[0]),
            code[0] != '\0' && code[1] == '\0' ? asciiOrNone(code[0]) : '\0');
    }
    return true;
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << table << error.what();
    return false;
  }
}

bool Database::write(const std::function<bool()>& work) {
  return writeCounted(*m_connection, work);
}

bool Database::createTable(const QString& table) {
  try {
    schema::createTable(*m_connection, table);
    return true;
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << table << error.what();
    return false;
  }
}

bool Database::isSound() const {
  try {
    const std::string found = m_connection->execAndGet("PRAGMA quick_check(1)").getString();
    if (found == "ok") return true;
    qCWarning(storeLog).noquote() << "check:" << found.c_str();
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << "check:" << error.what();
  }
  return false;
}

OpenedDatabase openDatabase(const QString& path) {
  const auto notOpened = [](int errorNumber) { return OpenedDatabase{std::nullopt, errorNumber}; };
  const QFileInfo file(path);
  if (!file.isFile()) return notOpened(openError::fileNotFound);
  // SQLite would take an empty file for a new, empty database.
  if (file.size() == 0) return notOpened(openError::notADatabase);
  try {
    auto connection = std::make_unique<SQLite::Database>(
        path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, busyMilliseconds);
    // SQLite reads the file only when it must: this makes it look.
    const int fileVersion = numberOfPragma(*connection, "user_version");
    if (fileVersion > schema::version) return notOpened(openError::notADatabase);
    if (sqlite3_db_readonly(connection->getHandle(), "main") == 1)
      return notOpened(openError::noAccess);
    connection->exec("PRAGMA synchronous=FULL");
    return {Database(std::move(connection)), openError::none};
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << path << error.what();
    return notOpened(errorNumberOf(error.getErrorCode()));
  }
}

std::optional<Database> peekDatabase(const QString& path) {
  if (QFileInfo(path).size() == 0) return std::nullopt;
  try {
    const QByteArray uri =
        QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded() + "?immutable=1";
    return Database(std::make_unique<SQLite::Database>(
        uri.toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_URI | SQLite::OPEN_NOMUTEX));
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << path << error.what();
    return std::nullopt;
  }
}

QStringList specialTables(const Database& database) {
  QStringList tables = database.TableDefs();
  tables.removeIf([](const QString& table) { return !isSpecialTable(table); });
  return tables;
}

std::optional<Database> createDatabase(const QString& path) {
  if (QFile::exists(path)) return std::nullopt;
  try {
    auto connection = std::make_unique<SQLite::Database>(
        path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX,
        busyMilliseconds);
    schema::stamp(*connection);
    return Database(std::move(connection));
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << path << error.what();
    return std::nullopt;
  }
}

}  // namespace tavoli
