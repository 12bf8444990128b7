#include "home/Placement.h"

#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>

#include "data/TextFile.h"
#include "system/Files.h"

namespace tavoli {

namespace {

const QString dataFolderName = QStringLiteral("TavoliPersonalData");
const QString lessonFolderName = QStringLiteral("Tavoliﾚｯｽﾝ");

/// In the build folder the originals lie beside `bin`; installed, in `share`.
QString buildOriginals(const QString& programFolder) {
  return programFolder + QStringLiteral("/../app-originals");
}

}  // namespace

QString defaultDataFolder(const QString& applicationFolder) {
  return applicationFolder + u'/' + dataFolderName;
}

QString lessonFolder(const QString& applicationFolder) {
  return applicationFolder + u'/' + lessonFolderName;
}

QString readPlacement(Files& files, const QString& applicationFolder) {
  const QString path = applicationFolder + QStringLiteral("/TavoAlloc.txt");
  const std::optional<QByteArray> bytes = files.read(path);
  const std::optional<QString> text = bytes ? decodeText(*bytes) : std::nullopt;
  const QStringList lines = text ? splitLines(*text) : QStringList();
  if (!lines.isEmpty() && lines.first().size() >= 2) return lines.first();
  QString folder = defaultDataFolder(applicationFolder);
  // The standard folder counts, noted or not.
  static_cast<void>(files.write(path, folder.toUtf8() + '\n'));
  return folder;
}

QString applicationFolderFor(const QString& programFolder) {
  if (QDir(buildOriginals(programFolder)).exists())
    return QDir::cleanPath(programFolder + QStringLiteral("/../app"));
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

bool fillApplicationFolder(Files& files, const QString& programFolder,
                           const QString& applicationFolder) {
  QString originals = buildOriginals(programFolder);
  if (!QDir(originals).exists()) originals = programFolder + QStringLiteral("/../share/tavoli");
  const QString dataFolder = defaultDataFolder(applicationFolder);
  const QString lessons = lessonFolder(applicationFolder);
  bool filled =
      files.makeFolder(dataFolder) == FileResult::Ok && files.makeFolder(lessons) == FileResult::Ok;
  const auto deliver = [&](const QString& from, const QString& pattern, const QString& to) {
    for (const QFileInfo& file : QDir(from).entryInfoList({pattern}, QDir::Files)) {
      const QString target = to + u'/' + file.fileName();
      if (!files.exists(target))
        filled = files.copy(file.canonicalFilePath(), target) == FileResult::Ok && filled;
    }
  };
  deliver(originals, QStringLiteral("TavoDB*.mdb"), dataFolder);
  deliver(originals + u'/' + lessonFolderName, QStringLiteral("*"), lessons);
  return filled;
}

}  // namespace tavoli
