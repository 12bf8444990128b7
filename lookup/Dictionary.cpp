// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Dictionary.h"

#include "data/Schema.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QString headingOf(const QString& table) {
  if (table == tableJTDIC) return u"中学DB"_s;
  return table == tableSTDIC ? u"高校DB"_s : table;
}

}  // namespace

Dictionary dictionaryOf(const QString& table, TableCursor& rows) {
  return {headingOf(table), LookUp(rows)};
}

}  // namespace tavoli
