// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Descent.h"

#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>

#include "data/Database.h"
#include "data/Machine.h"
#include "data/Schema.h"
#include "data/StoreLog.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int tokenDigits = 8;
constexpr qint64 maxNumber = 1'000'000'000'000;  // nobody gets there by learning

bool countChange(SQLite::Database& database) {
  if (!database.tableExists(tableBDIC.toStdString())) return true;
  TableCursor rows(database, tableBDIC, {field問正コ});
  rows.Seek(SeekOp::Equal, rowDescent);
  if (rows.failed()) return false;
  const QFileInfo file(QString::fromStdString(database.getFilename()));
  QString machine = machineOf(file.path());
  if (machine.isEmpty()) {
    if (rows.NoMatch()) return true;
    // An id of its own keeps the change from looking as if it had never been made.
    machine = randomId(tokenDigits);
  }
  Descent descent;
  if (!rows.NoMatch()) {
    // What cannot be read is stood for by an id that no other copy has.
    descent = parseDescent(rows.text(field問正コ))
                  .value_or(Descent{{randomId(tokenDigits), {1, randomId(tokenDigits)}}});
  }
  Change& last = descent[machine];
  last = {last.number + 1, randomId(tokenDigits)};
  if (!rows.EditOrAddNew(rowDescent, {{field記憶, u"0"_s}, {field回数, u"00"_s}})) return false;
  rows.setValue(field問正コ, packDescent(descent));
  return rows.Update();
}

}  // namespace

QString packDescent(const Descent& descent) {
  QString text;
  for (auto machine = descent.begin(); machine != descent.end(); ++machine)
    text += machine.key() + u' ' + QString::number(machine->number) + u' ' + machine->token + u';';
  return text;
}

std::optional<Descent> parseDescent(const QString& text) {
  Descent descent;
  const QStringList machines = text.split(u';');
  for (const QString& machine : machines.first(machines.size() - 1)) {
    const QStringList parts = machine.split(u' ');
    if (parts.size() != 3) return std::nullopt;
    const qint64 number = parts[1].toLongLong();
    if (number < 1 || number > maxNumber) return std::nullopt;
    descent[parts[0]] = {number, parts[2]};
  }
  if (descent.isEmpty() || packDescent(descent) != text) return std::nullopt;
  return descent;
}

std::optional<Descent> readDescent(Database& database) {
  const auto rows = database.OpenRecordset(tableBDIC, {field問正コ});
  if (!rows) return std::nullopt;
  rows->Seek(SeekOp::Equal, rowDescent);
  return rows->NoMatch() ? std::nullopt : parseDescent(rows->text(field問正コ));
}

bool writeCounted(SQLite::Database& database, const std::function<bool()>& work) {
  try {
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    const auto before = database.getTotalChanges();
    if (!work()) return false;
    if (database.getTotalChanges() != before && !countChange(database)) return false;
    transaction.commit();
    return true;
  } catch (const SQLite::Exception& error) {
    qCWarning(storeLog) << "transaction:" << error.what();
    return false;
  }
}

}  // namespace tavoli
