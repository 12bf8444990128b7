// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/TableCursor.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "data/Descent.h"
#include "data/Schema.h"
#include "data/StoreLog.h"

using namespace Qt::StringLiterals;

namespace tavoli {

using schema::keyOrder;
using schema::orderColumn;
using schema::quoted;

TableCursor::TableCursor(SQLite::Database& database, const QString& table,
                         const QStringList& fields)
    : m_database(database), m_table(table), m_keyField(keyField(table)), m_fields(m_keyField) {
  SQLite::Statement columns(database, u"PRAGMA table_info(%1)"_s.arg(quoted(table)).toStdString());
  while (columns.executeStep()) {
    const QString field = QString::fromUtf8(columns.getColumn("name").getText());
    if (field != m_keyField && (fields.isEmpty() || fields.contains(field))) m_fields.append(field);
  }
  MoveFirst();
}

TableCursor::~TableCursor() = default;

QString TableCursor::sqlOf(Query query) const {
  const QString key = keyOrder(u"?1"_s);
  const QString ascending = u"%1,%2,rowid"_s.arg(orderColumn, m_keyField);
  const QString descending = u"%1 DESC,%2 DESC,rowid DESC"_s.arg(orderColumn, m_keyField);
  const QString keyIs = u"WHERE %1%2%3"_s;
  const QString rowIs = u"WHERE (%1,%2,rowid)%3(%4,?1,?2)"_s;

  QString where;
  QString order = ascending;
  switch (query) {
    case Query::First:
      break;
    case Query::Last:
      order = descending;
      break;
    case Query::Exact:
      where = keyIs.arg(orderColumn, u"="_s, key) + u" AND %1=?1"_s.arg(m_keyField);
      break;
    case Query::Equal:
      where = keyIs.arg(orderColumn, u"="_s, key);
      break;
    case Query::AtOrAfter:
      where = keyIs.arg(orderColumn, u">="_s, key);
      break;
    case Query::AtOrBefore:
      where = keyIs.arg(orderColumn, u"<="_s, key);
      order = descending;
      break;
    case Query::After:
      where = rowIs.arg(orderColumn, m_keyField, u">"_s, key);
      break;
    case Query::Before:
      where = rowIs.arg(orderColumn, m_keyField, u"<"_s, key);
      order = descending;
      break;
  }
  QStringList columns;
  for (const QString& field : m_fields) columns.append(quoted(field));
  return u"SELECT rowid,%1 FROM %2 %3 ORDER BY %4"_s.arg(columns.join(u','), quoted(m_table), where,
                                                         order);
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
      const char* text = column.getText(nullptr);
      if (text)
        field = QString::fromUtf8(text, column.getBytes());
      else
        field.reset();
    }
    m_place = Place::OnRow;
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << m_table << error.what();
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
  if (op == SeekOp::Equal) {
    seekEqual(key);
    return;
  }
  const bool backward = op == SeekOp::AtOrBefore;
  SQLite::Statement& statement = prepared(backward ? Query::AtOrBefore : Query::AtOrAfter);
  statement.bind(1, key.toStdString());
  start(statement, backward ? Direction::Backward : Direction::Forward);
  m_noMatch = !hasRow();
}

void TableCursor::seekEqual(const QString& key) {
  const std::string text = key.toStdString();
  for (const Query query : {Query::Exact, Query::Equal}) {
    SQLite::Statement& statement = prepared(query);
    statement.bind(1, text);
    start(statement, Direction::Forward);
    // The statement yields matches only: later moves must start from the row that it found.
    stopWalk();
    if (hasRow() || m_failed) break;
  }
  m_noMatch = !hasRow();
  if (m_noMatch) m_place = Place::Nowhere;
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
  return hasRow() ? m_row.front().value_or(QString()) : QString();
}

const Field& TableCursor::value(const QString& field) const {
  static const Field null;
  const qsizetype index = m_fields.indexOf(field);
  if (!hasRow() || index < 0) return null;
  return m_row[static_cast<size_t>(index)];
}

bool TableCursor::isDamaged(const QString& field) const {
  // Bytes that are no UTF-8 were read as the replacement character. It may be stored itself, though
  // hardly ever: so the bytes are looked at only then, and walking costs nothing more.
  const Field& read = value(field);
  if (!read || !read->contains(QChar(QChar::ReplacementCharacter))) return false;
  try {
    SQLite::Statement stored(
        m_database,
        u"SELECT %1 FROM %2 WHERE rowid=?"_s.arg(quoted(field), quoted(m_table)).toStdString());
    stored.bind(1, static_cast<int64_t>(m_rowId));
    if (!stored.executeStep()) return true;
    const SQLite::Column column = stored.getColumn(0);
    return !QUtf8StringView(column.getText(), column.getBytes()).isValidUtf8();
  } catch (const SQLite::Exception&) {
    return true;  // never to be written over what cannot be read
  }
}

void TableCursor::AddNew() {
  m_pending = Pending::Adding;
  m_changedFields.clear();
  m_changes.clear();
}

void TableCursor::Edit() {
  m_pending = hasRow() ? Pending::Editing : Pending::None;
  m_changedFields.clear();
  m_changes.clear();
}

bool TableCursor::EditOrAddNew(const QString& key,
                               const QList<std::pair<QString, QString>>& ifNew) {
  Seek(SeekOp::Equal, key);
  if (m_failed) return false;
  if (!m_noMatch) {
    Edit();
    return true;
  }
  AddNew();
  setValue(m_keyField, key);
  for (const auto& [field, value] : ifNew) setValue(field, value);
  return true;
}

void TableCursor::setValue(const QString& field, const Field& value) {
  const qsizetype known = m_changedFields.indexOf(field);
  if (known >= 0) {
    m_changes[static_cast<size_t>(known)] = value;
    return;
  }
  m_changedFields.append(field);
  m_changes.push_back(value);
}

SQLite::Statement& TableCursor::preparedUpdate() {
  if (!m_update || m_updateFields != m_changedFields) {
    QStringList assignments;
    for (const QString& field : std::as_const(m_changedFields))
      assignments.append(quoted(field) + u"=?"_s);
    const QString sql =
        u"UPDATE %1 SET %2 WHERE rowid=?"_s.arg(quoted(m_table), assignments.join(u','));
    m_update = std::make_unique<SQLite::Statement>(m_database, sql.toStdString());
    m_updateFields = m_changedFields;
  }
  m_update->reset();
  return *m_update;
}

bool TableCursor::Update() {
  const Pending pending = std::exchange(m_pending, Pending::None);
  if (pending == Pending::None) return false;
  stopWalk();
  const bool alone = sqlite3_get_autocommit(m_database.getHandle()) != 0;
  const bool stored =
      alone ? writeCounted(m_database, [&] { return store(pending); }) : store(pending);
  if (!stored) {
    m_failed = true;
    return false;
  }
  if (pending == Pending::Editing) {
    for (qsizetype i = 0; i < m_changedFields.size(); ++i) {
      const qsizetype index = m_fields.indexOf(m_changedFields[i]);
      if (index >= 0) m_row[static_cast<size_t>(index)] = m_changes[static_cast<size_t>(i)];
    }
  }
  return true;
}

bool TableCursor::store(Pending pending) {
  const auto places = static_cast<int>(m_changes.size());
  std::vector<std::string> texts(m_changes.size());
  const auto bindChanges = [&](SQLite::Statement& statement) {
    for (int i = 0; i < places; ++i) {
      const Field& value = m_changes[static_cast<size_t>(i)];
      std::string& text = texts[static_cast<size_t>(i)];
      if (value)
        statement.bindNoCopy(i + 1, text = value->toStdString());
      else
        statement.bind(i + 1);
    }
  };
  try {
    if (pending == Pending::Editing) {
      SQLite::Statement& statement = preparedUpdate();
      bindChanges(statement);
      statement.bind(places + 1, static_cast<int64_t>(m_rowId));
      statement.exec();
    } else {
      QStringList names;
      for (const QString& field : std::as_const(m_changedFields)) names.append(quoted(field));
      const QString marks = QStringList(places, u"?"_s).join(u',');
      SQLite::Statement statement(m_database, u"INSERT INTO %1 (%2) VALUES (%3)"_s
                                                  .arg(quoted(m_table), names.join(u','), marks)
                                                  .toStdString());
      bindChanges(statement);
      statement.exec();
    }
    return true;
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog).noquote() << m_table << error.what();
    return false;
  }
}

}  // namespace tavoli
