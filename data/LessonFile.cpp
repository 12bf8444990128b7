// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/LessonFile.h"

#include "data/Text.h"
#include "data/TextFile.h"
#include "system/Files.h"

namespace tavoli {

std::optional<QStringList> readLessonLines(const Files& files, const QString& path) {
  const std::optional<QByteArray> bytes = files.read(path);
  if (!bytes) return std::nullopt;
  const std::optional<QString> text = decodeText(*bytes);
  if (!text) return std::nullopt;
  QStringList lines = splitLines(storedSpelling(*text));
  for (QString& line : lines) line.truncate(lessonLineWidth);
  return lines;
}

bool isPracticeComment(const QString& line) {
  return line.startsWith(u'*') || line.startsWith(u'!');
}

}  // namespace tavoli
