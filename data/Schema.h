// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace SQLite {
class Database;
}

// The tables of a personal database, their order and their upgrades.
namespace tavoli {

inline const QString tableBDIC = QStringLiteral("BDIC");
inline const QString tableJTDIC = QStringLiteral("JTDIC");
inline const QString tableSTDIC = QStringLiteral("STDIC");

inline const QString field文番 = QStringLiteral("文番");
inline const QString field英語 = QStringLiteral("英語");
inline const QString field記憶 = QStringLiteral("記憶");
inline const QString field回数 = QStringLiteral("回数");
inline const QString fieldレベル = QStringLiteral("レベル");
inline const QString field問正コ = QStringLiteral("問正コ");
inline const QString field発同日コ = QStringLiteral("発同日コ");
inline const QString field読上 = QStringLiteral("読上");

/// Reserved rows of BDIC.
inline const QString rowPassword = QStringLiteral("zzzzz0");
inline const QString rowCourse = QStringLiteral("zzzzz1");
inline const QString rowProgress = QStringLiteral("zzzzz2");
inline const QString rowAutoPlay = QStringLiteral("zzzzz5");
inline const QString rowDescent = QStringLiteral("zzzzz6");
/// Reserved rows of every dictionary: the end of its content, and its practice conditions.
inline const QString rowContentEnd = QStringLiteral("zzzzzzzzzzzzzzzzzzzz1");
inline const QString rowConditions = QStringLiteral("zzzzzzzzzzzzzzzzzzzz2");

/// Keys that begin with "zzzz" hold the learner's own rows and end marks. They stand behind all
/// content in key order.
bool isReservedKey(const QString& key);
/// The same for a key in UTF-8.
bool isReservedKey(const char* key);

/// True for every table of a personal database that is a specialist dictionary: all but BDIC,
/// JTDIC, STDIC and those whose name begins with "USys" or "MSys".
bool isSpecialTable(const QString& table);

/// The field that a table is keyed and ordered by.
QString keyField(const QString& table);
/// The field that holds a table's packed records.
QString recordField(const QString& table);

namespace schema {

/// What a database file says of itself in its header; the upgrades lead up to this version.
inline constexpr int version = 1;
inline constexpr int applicationId = 0x5441564F;  // "TAVO"

/// The column that holds a key's place in the order.
inline const QString orderColumn = QStringLiteral("順");

/// The SQL expression that gives a key's place in the order: reserved keys last, else symbols
/// before digits before letters, upper and lower case alike. It uses nothing but SQLite's own
/// functions, so any SQLite tool can read, check and mend the file.
QString keyOrder(const QString& sqlOperand);

/// Makes an empty table with its index. `table` is BDIC or the name of a dictionary.
void createTable(SQLite::Database& database, const QString& table);
/// Writes version and application id of a new file.
void stamp(SQLite::Database& database);

QString quoted(const QString& name);

}  // namespace schema
}  // namespace tavoli
