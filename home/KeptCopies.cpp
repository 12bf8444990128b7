// SPDX-License-Identifier: GPL-3.0-or-later

#include "home/KeptCopies.h"

#include "data/Database.h"
#include "data/TextFile.h"
#include "home/CopyComparison.h"
#include "home/LineTexts.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

QString datedName(const Files& files, const QString& path, const QDateTime& time) {
  const QString dated = path + time.toString(u"-yyyyMMdd-HHmmss"_s);
  QString name = dated;
  for (int n = 2; files.exists(name); ++n) name = dated + u'-' + QString::number(n);
  return name;
}

std::optional<QString> keepAside(Files& files, const QString& path, const QDateTime& time) {
  const QString kept = datedName(files, path, time);
  if (files.rename(path, kept) != FileResult::Ok) return std::nullopt;
  // A journal belongs to the file that it lay beside, never to its successor.
  const QString journal = path + journalEnding;
  if (files.exists(journal) && files.rename(journal, kept + journalEnding) != FileResult::Ok) {
    // If even that fails the file lies under its dated name, whole.
    static_cast<void>(files.rename(kept, path));
    return std::nullopt;
  }
  return kept;
}

void takeBackHalfWritten(const Files& files, const QString& path) {
  if (!files.exists(path + journalEnding)) return;
  // Whoever opens it for its content reports what cannot be opened.
  static_cast<void>(openDatabase(path));
}

bool sameContent(const Files& files, const QString& path, const QString& other) {
  const std::optional<QByteArray> content = files.read(path);
  return content && content == files.read(other);
}

bool mayGiveWay(const Files& files, const QString& path, const QString& other) {
  if (sameContent(files, path, other)) return true;
  const std::optional<QStringList> lines = readLines(files, path);
  const std::optional<QStringList> othersLines = readLines(files, other);
  if (lines && othersLines) return joinedLines(*othersLines, *lines, noEnd) == *othersLines;
  return compareCopies(pastOf(path), pastOf(other), false) == CopyRelation::WorkOlder;
}

}  // namespace tavoli
