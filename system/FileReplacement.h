// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

namespace tavoli {

/// Writes all of the bytes to an open file. Where that fails `errno` says why.
[[nodiscard]] bool writeAll(int file, const QByteArray& bytes);

/// New content for a file, written beside it and put in its place only when it is complete and on
/// the disk: the target holds the old content or the new one. A link is neither followed nor
/// replaced, since in a shared folder anybody may have laid it there. Where something fails `errno`
/// says why.
class FileReplacement {
 public:
  explicit FileReplacement(const QString& target);
  /// Drops what was not put in place.
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  bool isOpen() const { return m_file >= 0; }
  [[nodiscard]] bool write(const QByteArray& block) const { return writeAll(m_file, block); }
  /// The time and, where the target is new, the mode of another file; the owner may always write.
  [[nodiscard]] bool resemble(const struct stat& other) const;
  [[nodiscard]] bool putInPlace();

 private:
  QByteArray m_target;
  QByteArray m_path;
  int m_file = -1;
  bool m_isNew = true;
};

}  // namespace tavoli
