#include "system/FileLock.h"

#include <QFile>

namespace tavoli {

FileLock::Result FileLock::take(const QString& path) {
  m_lock.reset();
  const QString lockPath = path + QStringLiteral(".lock");
  auto lock = std::make_unique<QLockFile>(lockPath);
  lock->setStaleLockTime(0);  // however long a run lasts: only a dead program's lock is stale
  const bool leftBehind = QFile::exists(lockPath);
  if (!lock->tryLock(0))
    return lock->error() == QLockFile::LockFailedError ? Result::HeldByLiveProgram : Result::Failed;
  m_lock = std::move(lock);
  return leftBehind ? Result::TakenFromDeadProgram : Result::Taken;
}

}  // namespace tavoli
