// SPDX-License-Identifier: GPL-3.0-or-later

#include "home/Relocation.h"

#include <QDir>

#include "data/LearnerFiles.h"
#include "data/Machine.h"
#include "home/KeptCopies.h"
#include "home/Placement.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString accessPassword = u"8642097531B"_s;
const QString accessPasswordLower = u"8642097531b"_s;

/// The path with links resolved as far down as it exists.
QString resolved(const QString& path) {
  const QFileInfo info(QDir::cleanPath(path));
  if (info.exists()) return info.canonicalFilePath();
  if (info.isRoot()) return info.filePath();
  return QDir(resolved(info.path())).filePath(info.fileName());
}

bool isInside(const QString& path, const QString& folder) {
  return (resolved(path) + u'/').startsWith(resolved(folder) + u'/');
}

}  // namespace

bool isAccessPassword(const QString& text) {
  return text == accessPassword || text == accessPasswordLower;
}

Relocation::Relocation(Files& files, const QString& applicationFolder)
    : m_files(files), m_applicationFolder(applicationFolder) {}

QString Relocation::target(const QString& chosenFolder) {
  const QString folder = QDir::fromNativeSeparators(QFileInfo(chosenFolder).absoluteFilePath());
  return defaultDataFolder(folder.endsWith(u'/') ? folder.chopped(1) : folder);
}

Relocation::Result Relocation::place(const QString& chosenFolder) {
  const QString present = readPlacement(m_files, m_applicationFolder);
  const QString to = target(chosenFolder);
  if (isSameFolder(to, present)) return Result::SameFolder;
  if (isInside(to, present)) return Result::InsideSource;

  const QByteArray line = to.toUtf8() + '\n';
  // Only people read the history: without it the files can be placed all the same.
  static_cast<void>(m_files.append(m_applicationFolder + u"/TavoAllocHisto.txt"_s, line));
  if (!copyFolder(present, to)) return Result::CopyFailed;
  const QString allocation = m_applicationFolder + u"/TavoAlloc.txt"_s;
  return m_files.write(allocation, line) == FileResult::Ok ? Result::Placed : Result::NotRecorded;
}

bool Relocation::copyFolder(const QString& from, const QString& to) {
  const QDir source(from);
  if (!source.exists() || !source.isReadable()) return false;
  if (m_files.makeFolder(to) != FileResult::Ok) return false;
  // By name, so that a database comes before the journal that belongs to it.
  for (const QFileInfo& file : source.entryInfoList(QDir::Files | QDir::Hidden, QDir::Name)) {
    if (file.fileName().endsWith(u".lock"_s) || file.fileName() == machineFileName) continue;
    takeBackHalfWritten(m_files, file.filePath());
    if (!m_files.exists(file.filePath())) continue;  // a journal whose changes were taken back
    if (!copyFile(file.filePath(), QDir(to).filePath(file.fileName()))) return false;
  }
  const auto folders = QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks;
  for (const QFileInfo& folder : source.entryInfoList(folders)) {
    if (!copyFolder(folder.filePath(), QDir(to).filePath(folder.fileName()))) return false;
  }
  return true;
}

bool Relocation::copyFile(const QString& from, const QString& to) {
  return clearTarget(from, to) && m_files.copy(from, to) == FileResult::Ok;
}

bool Relocation::clearTarget(const QString& from, const QString& to) {
  if (m_files.exists(to) && !mayGiveWay(m_files, to, from) &&
      !keepAside(m_files, to, m_files.modified(to)))
    return false;
  const QString journal = to + journalEnding;
  return !m_files.exists(journal) || m_files.remove(journal) == FileResult::Ok;
}

}  // namespace tavoli
