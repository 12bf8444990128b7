// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace SQLite {
class Database;
class Statement;
}  // namespace SQLite

namespace tavoli {

/// A field may hold NULL, which is not the empty text.
using Field = std::optional<QString>;

/// Where Seek goes: the row with the key ("="), the first row at or behind it (">="), the last row
/// at or before it ("<=").
enum class SeekOp { Equal, AtOrAfter, AtOrBefore };

/// A read-write walk over one table in key order. Keys that differ only in case stand side by side;
/// Seek "=" lands on the exactly equal one where there is one. A read that fails ends the walk and
/// sets failed(), until the next Seek, MoveFirst or MoveLast.
class TableCursor {
 public:
  /// With `fields` only these and the key are read, the others count as NULL; all may be written.
  TableCursor(SQLite::Database& database, const QString& table, const QStringList& fields = {});
  ~TableCursor();
  TableCursor(const TableCursor&) = delete;
  TableCursor& operator=(const TableCursor&) = delete;

  void Seek(SeekOp op, const QString& key);
  /// Whether the last Seek found nothing; the cursor then stands on no row.
  bool NoMatch() const { return m_noMatch; }
  bool atEOF() const { return m_place == Place::BehindLast; }
  bool atBOF() const { return m_place == Place::BeforeFirst; }
  void MoveFirst();
  void MoveLast();
  /// From no row (behind a Seek without a match, at either end) both moves stay where they are.
  void MoveNext();
  void MovePrevious();

  bool hasRow() const { return m_place == Place::OnRow; }
  /// The key of the current row; empty when there is none.
  QString key() const;
  /// NULL where there is no current row. Stands until the cursor moves.
  const Field& value(const QString& field) const;
  /// Whether the field's bytes are no UTF-8, so that its text is not all of what is stored.
  bool isDamaged(const QString& field) const;
  /// The same with "" for NULL.
  QString text(const QString& field) const { return value(field).value_or(QString()); }

  /// Begins a new row; Update stores it and leaves the current row what it was.
  void AddNew();
  /// Begins a change of the current row; Update stores it.
  void Edit();
  /// Begins a change of the row with that key, or, where there is none, a new row with the key and
  /// the fields `ifNew`. False when the table could not be read; nothing is begun then.
  [[nodiscard]] bool EditOrAddNew(const QString& key,
                                  const QList<std::pair<QString, QString>>& ifNew = {});
  void setValue(const QString& field, const Field& value);
  /// Stores what AddNew or Edit began, in a transaction of its own unless one is open, so that it
  /// counts as a change. False when it could not be stored.
  [[nodiscard]] bool Update();

  bool failed() const { return m_failed; }

 private:
  enum class Place { BeforeFirst, OnRow, BehindLast, Nowhere };
  enum class Direction { Forward, Backward };
  enum class Pending { None, Adding, Editing };

  enum class Query { First, Last, Exact, Equal, AtOrAfter, AtOrBefore, After, Before };
  static constexpr size_t queryCount = 8;

  /// The text of a query; ?1 is a key, ?2 a row id.
  QString sqlOf(Query query) const;
  /// The query's statement, made at its first use.
  SQLite::Statement& prepared(Query query);
  /// The statement that changes these fields of a row; the last one is kept, since rows are mostly
  /// changed alike. Its last place is the row id's.
  SQLite::Statement& preparedUpdate();
  void seekEqual(const QString& key);
  /// Runs a row-yielding statement to its first row and makes it the walk that moves go on with.
  void start(SQLite::Statement& statement, Direction direction);
  void step();
  void move(Direction direction);
  void stopWalk();
  bool store(Pending pending);

  SQLite::Database& m_database;
  QString m_table;
  QString m_keyField;
  QStringList m_fields;  ///< those that are read, the key first
  std::array<std::unique_ptr<SQLite::Statement>, queryCount> m_statements;

  SQLite::Statement* m_walk = nullptr;
  Direction m_direction = Direction::Forward;
  Place m_place = Place::Nowhere;
  bool m_noMatch = false;
  bool m_failed = false;
  qint64 m_rowId = 0;
  std::vector<Field> m_row;

  Pending m_pending = Pending::None;
  QStringList m_changedFields;
  std::vector<Field> m_changes;
  QStringList m_updateFields;
  std::unique_ptr<SQLite::Statement> m_update;
};

}  // namespace tavoli
