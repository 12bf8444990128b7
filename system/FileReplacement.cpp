// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/FileReplacement.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace tavoli {

namespace {

constexpr mode_t permissions = 0777;

}  // namespace

bool writeAll(int file, const QByteArray& bytes) {
  qsizetype written = 0;
  while (written < bytes.size()) {
    const ssize_t count =
        ::write(file, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    written += count;
  }
  return true;
}

FileReplacement::FileReplacement(const QString& target)
    : m_target(QFile::encodeName(target)), m_path(m_target + ".XXXXXX") {
  struct stat present {};
  m_isNew = lstat(m_target.constData(), &present) != 0;
  if (!m_isNew) {
    if (S_ISLNK(present.st_mode)) errno = ELOOP;
    if (S_ISLNK(present.st_mode) || access(m_target.constData(), W_OK) != 0) return;
  }
  m_file = mkostemp(m_path.data(), O_CLOEXEC);
  if (m_file >= 0 && !m_isNew) static_cast<void>(fchmod(m_file, present.st_mode & permissions));
}

FileReplacement::~FileReplacement() {
  if (m_file < 0) return;
  close(m_file);
  unlink(m_path.constData());
}

bool FileReplacement::resemble(const struct stat& other) const {
  const std::array times = {other.st_atim, other.st_mtim};
  const mode_t mode = (other.st_mode & permissions) | S_IRUSR | S_IWUSR;
  return (!m_isNew || fchmod(m_file, mode) == 0) && futimens(m_file, times.data()) == 0;
}

bool FileReplacement::putInPlace() {
  if (fsync(m_file) != 0 || std::rename(m_path.constData(), m_target.constData()) != 0)
    return false;
  close(m_file);
  m_file = -1;
  return true;
}

}  // namespace tavoli
