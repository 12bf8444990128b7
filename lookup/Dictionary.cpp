#include "lookup/Dictionary.h"

#include "data/Schema.h"

namespace tavoli {

namespace {

QString headingOf(const QString& table) {
  if (table == tableJTDIC) return QStringLiteral("中学DB");
  return table == tableSTDIC ? QStringLiteral("高校DB") : table;
}

}  // namespace

Dictionary dictionaryOf(const QString& table, TableCursor& rows) {
  return {headingOf(table), LookUp(rows)};
}

}  // namespace tavoli
