// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/LearnerFiles.h"

#include <QDir>
#include <QFileInfo>

#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

bool isSameFolder(const QString& a, const QString& b) {
  const auto canonical = [](const QString& path) {
    const QString resolved = QFileInfo(path).canonicalFilePath();
    return resolved.isEmpty() ? QDir::cleanPath(path) : resolved;
  };
  return canonical(a) == canonical(b);
}

LearnerFiles learnerFiles(const QString& userId, const QString& dbPath,
                          const QString& dbPathDefault) {
  const QString id = trimBlanks(userId);
  const QString bareName = u"/TavoDB"_s + id;
  const bool bare = QFileInfo(dbPath + bareName).isFile();
  const QString name = bare ? bareName : bareName + u".mdb"_s;

  LearnerFiles files;
  files.userId = id;
  files.dbFilePlaced = dbPath + name;
  files.dbFileWork = dbPathDefault + name;
  files.condFilePlaced = dbPath + u"/TavoCond"_s + id;
  files.condFileWork = dbPathDefault + u"/TavoCond"_s + id;
  files.historyFilePlaced = dbPath + u"/TavoHistory"_s + id;
  files.historyFileWork = dbPathDefault + u"/TavoHistory"_s + id;
  files.backupFile = dbPath + bareName + u"BackUp"_s;
  files.placedElsewhere = !isSameFolder(dbPath, dbPathDefault);
  return files;
}

}  // namespace tavoli
