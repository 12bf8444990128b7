// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/TextFile.h"

#include <QStringDecoder>

#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

std::optional<QString> decodeText(const QByteArray& bytes) {
  if (bytes.contains('\0')) return std::nullopt;
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString text = utf8(bytes);
  if (!utf8.hasError()) return text;
  QStringDecoder codePage932("Shift_JIS");
  text = codePage932(bytes);
  if (codePage932.hasError() || text.contains(QChar::ReplacementCharacter)) return std::nullopt;
  return text;
}

std::optional<QStringList> readLines(const Files& files, const QString& path) {
  if (!files.exists(path)) return QStringList();
  const std::optional<QByteArray> bytes = files.read(path);
  const std::optional<QString> text = bytes ? decodeText(*bytes) : std::nullopt;
  return text ? std::optional(splitLines(*text)) : std::nullopt;
}

FileResult appendLine(Files& files, const QString& path, const QString& line) {
  const QByteArray added = line.toUtf8() + '\n';
  const QByteArray stored = files.read(path).value_or(QByteArray());
  const std::optional<QString> text = decodeText(stored);
  if (!text || QUtf8StringView(stored).isValidUtf8()) return files.append(path, added);
  return files.write(path, text->toUtf8() + added);
}

QStringList splitLines(const QString& text) {
  QString unified = text;
  unified.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
  QStringList lines = unified.split(u'\n');
  if (lines.last().isEmpty()) lines.removeLast();
  return lines;
}

}  // namespace tavoli
