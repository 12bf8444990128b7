// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/FileLock.h"

#include <QFileInfo>
#include <QSysInfo>

namespace tavoli {

FileLock::Result FileLock::take(const QString& path) {
  m_lock.reset();
  const QString lockPath = path + QStringLiteral(".lock");
  auto lock = std::make_unique<QLockFile>(lockPath);
  lock->setStaleLockTime(0);  // however long a run lasts: only a dead program's lock is stale
  const bool leftBehind = QFile::exists(lockPath);
  if (lock->tryLock(0)) {
    m_lock = std::move(lock);
    return leftBehind ? Result::TakenFromDeadProgram : Result::Taken;
  }
  if (lock->error() != QLockFile::LockFailedError) return Result::Failed;
  askWhoHolds(*lock);
  return m_holder.host == QSysInfo::machineHostName() ? Result::HeldByLiveProgram
                                                      : Result::HeldElsewhere;
}

void FileLock::askWhoHolds(const QLockFile& lock) {
  m_holder = Holder();
  m_holder.lockPath = lock.fileName();
  m_holder.since = QFileInfo(m_holder.lockPath).lastModified();
  if (!lock.getLockInfo(&m_holder.processId, &m_holder.host, &m_holder.program))
    m_holder.program.clear();
}

}  // namespace tavoli
