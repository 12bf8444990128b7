// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>

namespace tavoli {

/// Keeps a file for one program at a time, by a lock file beside it. The lock is let go with the
/// object; one that a dead program of this host left behind is cleared.
class FileLock {
 public:
  enum class [[nodiscard]] Result{
      Taken,         TakenFromDeadProgram, HeldByLiveProgram,
      HeldElsewhere,  ///< by a program of another host, or by one that nobody can tell
      Failed,
  };
  Result take(const QString& path);
  void letGo() { m_lock.reset(); }

  /// Who holds the lock that could not be taken.
  struct Holder {
    QString program;  ///< empty where nobody can tell
    QString host;
    qint64 processId = 0;
    QDateTime since;
    QString lockPath;
  };
  const Holder& holder() const { return m_holder; }

 private:
  void askWhoHolds(const QLockFile& lock);

  std::unique_ptr<QLockFile> m_lock;
  Holder m_holder;
};

}  // namespace tavoli
