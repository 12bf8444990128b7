// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Schema.h"

#include <SQLiteCpp/SQLiteCpp.h>

using namespace Qt::StringLiterals;

namespace tavoli {

bool isReservedKey(const QString& key) {
  return key.startsWith(u"zzzz"_s, Qt::CaseInsensitive);
}

bool isReservedKey(const char* key) {
  return qstrnicmp(key, "zzzz", 4) == 0;
}

bool isSpecialTable(const QString& table) {
  return table != tableBDIC && table != tableJTDIC && table != tableSTDIC &&
         !table.startsWith(u"USys"_s) && !table.startsWith(u"MSys"_s);
}

QString keyField(const QString& table) {
  return table == tableBDIC ? field文番 : field英語;
}

QString recordField(const QString& table) {
  return table == tableBDIC ? field問正コ : field発同日コ;
}

namespace schema {

QString quoted(const QString& name) {
  QString inner = name;
  return u"\"%1\""_s.arg(inner.replace(u'"', u"\"\""_s));
}

QString keyOrder(const QString& sqlOperand) {
  // The first character decides on the class; U+2000 to U+303F and U+FF00 to U+FF65 hold the
  // punctuation and symbols of Japanese type.
  const QString keyClass =
      u"CASE WHEN lower(substr(%1,1,4))='zzzz' THEN '3' WHEN %1 GLOB '[0-9]*' THEN '1' "
      "WHEN %1 GLOB '[A-Za-z]*' OR unicode(%1)>=192 AND unicode(%1) NOT BETWEEN 8192 AND 12351 "
      "AND unicode(%1) NOT BETWEEN 65280 AND 65381 THEN '2' ELSE '0' END"_s;
  // Further on, "/" is the last symbol that stands before the digits by itself: those that would
  // not are put behind it. Only the ones that keys use, since SQLite bounds how deep a call may
  // nest.
  static const QString symbols = u":;=?@[]_~～…’"_s;
  QString order = u"lower(%1)"_s;
  for (const QChar symbol : symbols) order = u"replace(%1,'%2','/%2')"_s.arg(order, symbol);
  return (keyClass + u"||"_s + order).arg(sqlOperand);
}

void createTable(SQLite::Database& database, const QString& table) {
  const QString key = keyField(table);
  const QString fields =
      table == tableBDIC
          ? u"文番 TEXT NOT NULL, 記憶 TEXT, 回数 TEXT, 問正コ TEXT, 読上 TEXT"_s
          : u"英語 TEXT NOT NULL, レベル TEXT, 記憶 TEXT, 回数 TEXT, 発同日コ TEXT, 読上 TEXT"_s;
  const QString createTable =
      u"CREATE TABLE %1 (%2, %3 TEXT GENERATED ALWAYS AS (%4) VIRTUAL)"_s.arg(
          quoted(table), fields, orderColumn, keyOrder(key));
  const QString createIndex = u"CREATE INDEX %1 ON %2 (%3, %4)"_s.arg(
      quoted(table + u" "_s + key), quoted(table), orderColumn, key);
  database.exec(createTable.toStdString());
  database.exec(createIndex.toStdString());
}

void stamp(SQLite::Database& database) {
  database.exec("PRAGMA user_version=" + std::to_string(version));
  database.exec("PRAGMA application_id=" + std::to_string(applicationId));
}

}  // namespace schema
}  // namespace tavoli
