#include "data/LearnerFiles.h"

#include <QDir>
#include <QFileInfo>

#include "data/Text.h"

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
  const QString bareName = QStringLiteral("/TavoDB") + id;
  const bool bare = QFileInfo(dbPath + bareName).isFile();
  const QString name = bare ? bareName : bareName + QStringLiteral(".mdb");

  LearnerFiles files;
  files.userId = id;
  files.dbFilePlaced = dbPath + name;
  files.dbFileWork = dbPathDefault + name;
  files.condFilePlaced = dbPath + QStringLiteral("/TavoCond") + id;
  files.condFileWork = dbPathDefault + QStringLiteral("/TavoCond") + id;
  files.historyFilePlaced = dbPath + QStringLiteral("/TavoHistory") + id;
  files.historyFileWork = dbPathDefault + QStringLiteral("/TavoHistory") + id;
  files.backupFile = dbPath + bareName + QStringLiteral("BackUp");
  files.placedElsewhere = !isSameFolder(dbPath, dbPathDefault);
  return files;
}

}  // namespace tavoli
