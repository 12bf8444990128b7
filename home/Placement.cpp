// SPDX-License-Identifier: GPL-3.0-or-later

#include "home/Placement.h"

#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>

#include "data/TextFile.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString dataFolderName = u"TavoliPersonalData"_s;
const QString lessonFolderName = u"Tavoliﾚｯｽﾝ"_s;

QString buildOriginals(const QString& programFolder) {
  return programFolder + u"/../app-originals"_s;
}

/// In the build folder the originals lie beside `bin`; installed, in `share`.
QString originalsFor(const QString& programFolder) {
  const QString originals = buildOriginals(programFolder);
  return QDir(originals).exists() ? originals : programFolder + u"/../share/tavoli"_s;
}

}  // namespace

QString defaultDataFolder(const QString& applicationFolder) {
  return applicationFolder + u'/' + dataFolderName;
}

QString lessonFolder(const QString& applicationFolder) {
  return applicationFolder + u'/' + lessonFolderName;
}

QString readPlacement(Files& files, const QString& applicationFolder) {
  const QString path = applicationFolder + u"/TavoAlloc.txt"_s;
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
    return QDir::cleanPath(programFolder + u"/../app"_s);
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString deliveredContent(const QString& programFolder) {
  return originalsFor(programFolder) + u"/TavoDB000.mdb"_s;
}

bool fillApplicationFolder(Files& files, const QString& programFolder,
                           const QString& applicationFolder) {
  const QString originals = originalsFor(programFolder);
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
  deliver(originals, u"TavoDB*.mdb"_s, dataFolder);
  deliver(originals + u'/' + lessonFolderName, u"*"_s, lessons);
  return filled;
}

}  // namespace tavoli
