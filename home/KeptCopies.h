// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace tavoli {

class Files;

/// What a database's journal has behind the database's name.
inline const QString journalEnding = QStringLiteral("-journal");

/// A name beside a file's own that is not taken, with the time behind it.
QString datedName(const Files& files, const QString& path, const QDateTime& time);

/// Puts a file that must not be lost out of the way under a dated name, which is returned, and the
/// journal that belongs to it with it. Nothing when that cannot be done; the file then stays.
[[nodiscard]] std::optional<QString> keepAside(Files& files, const QString& path,
                                               const QDateTime& time);

/// Has a database take back what a program that died while it wrote had half written.
void takeBackHalfWritten(const Files& files, const QString& path);

/// Whether a file's bytes are another's.
[[nodiscard]] bool sameContent(const Files& files, const QString& path, const QString& other);

/// Whether a copy may give way to another of the same name: the same, a database whose changes the
/// other holds, or a text that goes on in the other.
[[nodiscard]] bool mayGiveWay(const Files& files, const QString& path, const QString& other);

}  // namespace tavoli
