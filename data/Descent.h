// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>

#include <functional>
#include <optional>

namespace SQLite {
class Database;
}

// Whose changes a copy of a personal database holds, so that of two copies one can tell which came
// from which. File times cannot: a clock may be wrong, and they know no fork.
namespace tavoli {

class Database;

/// The last change that a machine made.
struct Change {
  qint64 number = 0;
  QString token;  ///< random: tells two changes of the same number apart
  bool operator==(const Change&) const = default;
};

/// The last change of every machine, by the machine's id.
using Descent = QMap<QString, Change>;

/// As stored in 問正コ of the reserved row: id, number and token of a machine with a blank between,
/// and a ";" behind each machine.
QString packDescent(const Descent& descent);
/// Nothing for a text of another form.
[[nodiscard]] std::optional<Descent> parseDescent(const QString& text);

/// Nothing where the row is missing or is no descent.
[[nodiscard]] std::optional<Descent> readDescent(Database& database);

/// Does the work's writing in one transaction and counts it as a change of the machine that the
/// file's folder belongs to; in the folder of no machine only what was counted before is. All of it
/// is kept, or, when the work returns false or a write fails, nothing. Returns whether it was kept.
[[nodiscard]] bool writeCounted(SQLite::Database& database, const std::function<bool()>& work);

}  // namespace tavoli
