#include "data/TableCursor.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "data/Schema.h"

namespace tavoli {

using schema::keyOrder;
using schema::orderColumn;
using schema::quoted;

TableCursor::TableCursor(SQLite::Database& database, const QString& table)
    : m_database(database), m_table(table), m_keyField(keyField(table)) {
  SQLite::Statement columns(
      database, QStringLiteral("PRAGMA table_info(%1)").arg(quoted(table)).toStdString());
  while (columns.executeStep())
    m_fields.append(QString::fromUtf8(columns.getColumn("name").getText()));
  MoveFirst();
}

TableCursor::~TableCursor() = default;

QString TableCursor::sqlOf(Query query) const {
  const QString key = keyOrder(QStringLiteral("?1"));
  const QString ascending = QStringLiteral("%1,%2,rowid").arg(orderColumn, m_keyField);
  const QString descending =
      QStringLiteral("%1 DESC,%2 DESC,rowid DESC").arg(orderColumn, m_keyField);
  const QString keyIs = QStringLiteral("WHERE %1%2%3");
  const QString rowIs = QStringLiteral("WHERE (%1,%2,rowid)%3(%4,?1,?2)");

  QString where;
  QString order = ascending;
  switch (query) {
    case Query::First:
      break;
    case Query::Last:
      order = descending;
      break;
    case Query::Equal:
      where = keyIs.arg(orderColumn, QStringLiteral("="), key);
      order = QStringLiteral("%1<>?1,%2").arg(m_keyField, ascending);
      break;
    case Query::AtOrAfter:
      where = keyIs.arg(orderColumn, QStringLiteral(">="), key);
      break;
    case Query::AtOrBefore:
      where = keyIs.arg(orderColumn, QStringLiteral("<="), key);
      order = descending;
      break;
    case Query::After:
      where = rowIs.arg(orderColumn, m_keyField, QStringLiteral(">"), key);
      break;
    case Query::Before:
      where = rowIs.arg(orderColumn, m_keyField, QStringLiteral("<"), key);
      order = descending;
      break;
  }
  QStringList columns;
  for (const QString& field : m_fields) columns.append(quoted(field));
  return QStringLiteral("SELECT rowid,%1 FROM %2 %3 ORDER BY %4")
      .arg(columns.join(u','), quoted(m_table), where, order);
}

SQLite::Statement& TableCursor::prepared(Query query) {
  std::unique_ptr<SQLite::Statement>& statement = m_statements[static_cast<size_t>(query)];
  if (!statement)
    statement = std::make_unique<SQLite::Statement>(m_database, sqlOf(query).toStdString());
  statement->reset();
  return *statement;
}

void TableCursor::start(SQLite::Statement& statement, Direction direction) {
  m_walk = &statement;
  m_direction = direction;
  step();
}

void TableCursor::step() {
  try {
    if (!m_walk->executeStep()) {
      m_place = m_direction == Direction::Forward ? Place::BehindLast : Place::BeforeFirst;
      stopWalk();
      return;
    }
    m_rowId = m_walk->getColumn(0).getInt64();
    m_row.resize(static_cast<size_t>(m_fields.size()));
    for (int i = 0; i < m_fields.size(); ++i) {
      const SQLite::Column column = m_walk->getColumn(i + 1);
      Field& field = m_row[static_cast<size_t>(i)];
      if (column.isNull())
        field.reset();
      else
        field = QString::fromUtf8(column.getText(), column.getBytes());
    }
    m_place = Place::OnRow;
  } catch (const SQLite::Exception&) {
    m_failed = true;
    m_place = Place::BehindLast;
    stopWalk();
  }
}

void TableCursor::stopWalk() {
  // A statement left in mid-walk would hold the file's lock.
  if (m_walk) m_walk->tryReset();
  m_walk = nullptr;
}

void TableCursor::Seek(SeekOp op, const QString& key) {
  stopWalk();
  m_failed = false;
  const bool backward = op == SeekOp::AtOrBefore;
  const Query query = op == SeekOp::Equal ? Query::Equal
                      : backward          ? Query::AtOrBefore
                                          : Query::AtOrAfter;
  SQLite::Statement& statement = prepared(query);
  statement.bind(1, key.toStdString());
  start(statement, backward ? Direction::Backward : Direction::Forward);
  m_noMatch = !hasRow();
  // The order of an equal match is its own: later moves must start from the row that it found.
  if (op == SeekOp::Equal) {
    stopWalk();
    if (m_noMatch) m_place = Place::Nowhere;
  }
}

void TableCursor::MoveFirst() {
  stopWalk();
  m_failed = false;
  start(prepared(Query::First), Direction::Forward);
}

void TableCursor::MoveLast() {
  stopWalk();
  m_failed = false;
  start(prepared(Query::Last), Direction::Backward);
}

void TableCursor::MoveNext() {
  move(Direction::Forward);
}

void TableCursor::MovePrevious() {
  move(Direction::Backward);
}

void TableCursor::move(Direction direction) {
  if (!hasRow()) return;
  if (m_walk && m_direction == direction) {
    step();
    return;
  }
  stopWalk();
  SQLite::Statement& statement =
      prepared(direction == Direction::Forward ? Query::After : Query::Before);
  statement.bind(1, key().toStdString());
  statement.bind(2, static_cast<int64_t>(m_rowId));
  start(statement, direction);
}

QString TableCursor::key() const {
  return text(m_keyField);
}

Field TableCursor::value(const QString& field) const {
  const qsizetype index = m_fields.indexOf(field);
  if (!hasRow() || index < 0) return std::nullopt;
  return m_row[static_cast<size_t>(index)];
}

void TableCursor::AddNew() {
  m_pending = Pending::Adding;
  m_changes.clear();
}

void TableCursor::Edit() {
  m_pending = hasRow() ? Pending::Editing : Pending::None;
  m_changes.clear();
}

void TableCursor::setValue(const QString& field, const Field& value) {
  m_changes[field] = value;
}

bool TableCursor::Update() {
  const Pending pending = std::exchange(m_pending, Pending::None);
  if (pending == Pending::None) return false;
  stopWalk();
  try {
    QStringList names;
    QStringList places;
    const QStringList changed = m_changes.keys();
    for (const QString& field : changed) {
      names.append(quoted(field));
      places.append(QStringLiteral("?"));
    }
    QString sql;
    if (pending == Pending::Adding) {
      sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                .arg(quoted(m_table), names.join(u','), places.join(u','));
    } else {
      sql = QStringLiteral("UPDATE %1 SET %2=? WHERE rowid=%3")
                .arg(quoted(m_table), names.join(QStringLiteral("=?,")))
                .arg(m_rowId);
    }
    SQLite::Statement statement(m_database, sql.toStdString());
    for (int i = 0; i < changed.size(); ++i) {
      const Field& value = m_changes[changed[i]];
      if (value)
        statement.bind(i + 1, value->toStdString());
      else
        statement.bind(i + 1);
    }
    statement.exec();
  } catch (const SQLite::Exception&) {
    m_failed = true;
    return false;
  }
  if (pending == Pending::Editing) {
    for (auto change = m_changes.cbegin(); change != m_changes.cend(); ++change)
      m_row[static_cast<size_t>(m_fields.indexOf(change.key()))] = change.value();
  }
  return true;
}

}  // namespace tavoli
