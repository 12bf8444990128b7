// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

#include "system/Files.h"

// Text files that people and other programs may have written.
namespace tavoli {

/// The text of a file: UTF-8 where the bytes are valid UTF-8 (a byte order mark is dropped), else
/// the Windows code page 932. Nothing when it is neither, or holds characters no text has.
[[nodiscard]] std::optional<QString> decodeText(const QByteArray& bytes);

/// The lines of a file: none for one that is missing; nothing for one that is no text.
[[nodiscard]] std::optional<QStringList> readLines(const Files& files, const QString& path);

/// Adds a line to a file that is UTF-8 afterwards: one in the code page 932 is converted.
FileResult appendLine(Files& files, const QString& path, const QString& line);

/// Lines end in CR LF, LF or CR; the last one need not.
QStringList splitLines(const QString& text);

}  // namespace tavoli
