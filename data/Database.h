// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

#include "data/TableCursor.h"

namespace tavoli {

/// The error numbers of an OpenedDatabase.
namespace openError {
inline constexpr int none = 0;
inline constexpr int locked = 70;
inline constexpr int noAccess = 75;
inline constexpr int engine = 429;
inline constexpr int fileNotFound = 3024;
inline constexpr int notADatabase = 3343;
}  // namespace openError

/// An open personal database. Closing it (or letting it go) closes its cursors too; they must not
/// be used afterwards.
class Database {
 public:
  /// For openDatabase and createDatabase.
  explicit Database(std::unique_ptr<SQLite::Database> connection);
  ~Database();
  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;

  /// The names of all tables, in the order in which they were made.
  QStringList TableDefs() const;
  /// A cursor on the table's first row in key order; nothing when the table is missing or is no
  /// table of a personal database. With `fields` it reads only these and the key, and is faster.
  [[nodiscard]] std::unique_ptr<TableCursor> OpenRecordset(const QString& table,
                                                           const QStringList& fields = {});

  /// Walks over a table in one pass, up to its reserved rows: `visit` gets the first character of
  /// each key and the one character of `field`, 0 where the key begins with no ASCII character or
  /// the field does not hold one ASCII character. False when the table could not be read.
  [[nodiscard]] bool scanCodes(const QString& table, const QString& field,
                               const std::function<void(char initial, char code)>& visit) const;

  /// Does all the work's writing in one transaction: all of it is kept and counted as a change, or,
  /// when the work returns false or a write fails, nothing. Returns whether it was kept.
  [[nodiscard]] bool write(const std::function<bool()>& work);

  /// Makes an empty table: BDIC or a dictionary.
  [[nodiscard]] bool createTable(const QString& table);

  /// Reads the whole file and returns whether it is sound.
  [[nodiscard]] bool isSound() const;

 private:
  std::unique_ptr<SQLite::Database> m_connection;
};

/// A personal database that was to be opened: nothing where that could not be done.
struct [[nodiscard]] OpenedDatabase {
  std::optional<Database> database;
  int errorNumber = openError::none;  ///< why not: one of openError
};

/// The only way in which a personal database is opened, read-write and shared.
OpenedDatabase openDatabase(const QString& path);

/// A file for reading as it lies there, without a lock and without a look at what lies beside it;
/// nothing when it cannot be opened. For copies that nobody writes just then.
[[nodiscard]] std::optional<Database> peekDatabase(const QString& path);

/// The specialist dictionaries of a database, in the order in which they were made.
QStringList specialTables(const Database& database);

/// A new file with no table; nothing when it cannot be made. An existing file is an error.
[[nodiscard]] std::optional<Database> createDatabase(const QString& path);

}  // namespace tavoli
