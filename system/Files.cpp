// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include "system/FileReplacement.h"

namespace tavoli {

namespace {

/// What `errno` tells of a failure.
FileResult failure() {
  switch (errno) {
    case EACCES:
    case EPERM:
    case EROFS:
      return FileResult::Denied;
    case ELOOP:
      return FileResult::Link;
    default:
      return FileResult::Failed;
  }
}

FileResult resultOf(const QFileDevice& file) {
  if (file.error() == QFileDevice::NoError) return FileResult::Ok;
  return file.error() == QFileDevice::PermissionsError ? FileResult::Denied : FileResult::Failed;
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
  FileReplacement file(path);
  return file.isOpen() && file.write(content) && file.putInPlace() ? FileResult::Ok : failure();
}

FileResult SystemFiles::copy(const QString& from, const QString& to) {
  if (!exists(from)) return FileResult::NotFound;
  QFile source;
  const int opened = open(QFile::encodeName(from).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
  struct stat about {};
  if (opened < 0 || !source.open(opened, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ||
      fstat(opened, &about) != 0)
    return failure();
  FileReplacement target(to);
  if (!target.isOpen()) return failure();
  constexpr qint64 blockSize = 1 << 20;
  for (;;) {
    const QByteArray block = source.read(blockSize);
    if (source.error() != QFileDevice::NoError) return FileResult::Failed;
    if (block.isEmpty()) break;
    if (!target.write(block)) return failure();
  }
  return target.resemble(about) && target.putInPlace() ? FileResult::Ok : failure();
}

FileResult SystemFiles::append(const QString& path, const QByteArray& content) {
  constexpr mode_t ownersAlone = S_IRUSR | S_IWUSR;
  const int file = open(QFile::encodeName(path).constData(),
                        O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC, ownersAlone);
  if (file < 0) return failure();
  const off_t before = lseek(file, 0, SEEK_END);
  FileResult result = FileResult::Ok;
  if (!writeAll(file, content) || fsync(file) != 0) {
    result = failure();
    // Half a line would be in the way of the next one.
    if (ftruncate(file, before) != 0) result = FileResult::Failed;
  }
  close(file);
  return result;
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

}  // namespace tavoli
