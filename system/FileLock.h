#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace tavoli {

/// Keeps a file for one program at a time, by a lock file beside it. The lock is let go with the
/// object; one that a dead program left behind is cleared.
class FileLock {
 public:
  enum class Result { Taken, TakenFromDeadProgram, HeldByLiveProgram, Failed };
  Result take(const QString& path);

 private:
  std::unique_ptr<QLockFile> m_lock;
};

}  // namespace tavoli
