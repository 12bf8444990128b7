#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

namespace tavoli {

namespace {

FileResult resultOf(const QFileDevice& file) {
  switch (file.error()) {
    case QFileDevice::NoError:
      return FileResult::Ok;
    case QFileDevice::PermissionsError:
      return FileResult::Denied;
    default:
      // Opening a file that only its rights keep closed is reported as OpenError.
      return QFileInfo::exists(file.fileName()) && !QFileInfo(file.fileName()).isReadable()
                 ? FileResult::Denied
                 : FileResult::Failed;
  }
}

}  // namespace

bool SystemFiles::exists(const QString& path) const {
  return QFileInfo(path).isFile();
}

std::optional<QByteArray> SystemFiles::read(const QString& path) const {
  QFile file(path);
  if (!exists(path) || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return content;
}

FileResult SystemFiles::write(const QString& path, const QByteArray& content) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return resultOf(file);
  file.write(content);
  return file.commit() ? FileResult::Ok : resultOf(file);
}

FileResult SystemFiles::copy(const QString& from, const QString& to, bool keepTime) {
  QFile source(from);
  if (!exists(from)) return FileResult::NotFound;
  if (!source.open(QIODevice::ReadOnly)) return resultOf(source);
  QSaveFile target(to);
  if (!target.open(QIODevice::WriteOnly)) return resultOf(target);
  constexpr qint64 blockSize = 1 << 20;
  while (!source.atEnd()) {
    const QByteArray block = source.read(blockSize);
    if (block.isEmpty() || target.write(block) != block.size()) {
      target.cancelWriting();
      return FileResult::Failed;
    }
  }
  if (!target.commit()) return resultOf(target);
  if (keepTime) setModified(to, modified(from));
  return FileResult::Ok;
}

FileResult SystemFiles::append(const QString& path, const QByteArray& content) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) return resultOf(file);
  const qint64 before = file.size();
  if (file.write(content) == content.size() && file.flush() && fsync(file.handle()) == 0)
    return FileResult::Ok;
  // Half a line would be in the way of the next one.
  file.resize(before);
  return FileResult::Failed;
}

FileResult SystemFiles::rename(const QString& from, const QString& to) {
  if (!exists(from)) return FileResult::NotFound;
  QFile file(from);
  return file.rename(to) ? FileResult::Ok : resultOf(file);
}

FileResult SystemFiles::remove(const QString& path) {
  if (!exists(path)) return FileResult::NotFound;
  QFile file(path);
  return file.remove() ? FileResult::Ok : resultOf(file);
}

FileResult SystemFiles::makeFolder(const QString& path) {
  return QDir().mkpath(path) ? FileResult::Ok : FileResult::Denied;
}

QDateTime SystemFiles::modified(const QString& path) const {
  return exists(path) ? QFileInfo(path).lastModified() : QDateTime();
}

bool SystemFiles::setModified(const QString& path, const QDateTime& time) {
  QFile file(path);
  return file.open(QIODevice::ReadWrite) &&
         file.setFileTime(time, QFileDevice::FileModificationTime);
}

}  // namespace tavoli
