// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

namespace tavoli {

/// How an operation on a file came out.
enum class [[nodiscard]] FileResult{
    Ok,     NotFound, Denied,
    Link,  ///< a symbolic link, which is neither written to nor copied
    Failed,
};

/// Whole-file operations. Every one that replaces a file writes beside it, syncs and renames, so
/// that the target holds the old content or the new one and a failure leaves it as it was. A file
/// that is replaced keeps its mode; a new one is its owner's alone.
class Files {
 public:
  virtual ~Files() = default;
  virtual bool exists(const QString& path) const = 0;
  /// The content, or nothing when the file is missing or cannot be read.
  [[nodiscard]] virtual std::optional<QByteArray> read(const QString& path) const = 0;
  virtual FileResult write(const QString& path, const QByteArray& content) = 0;
  /// Replaces `to` by a copy of `from`, which keeps the original's time and, where it is new, the
  /// original's mode.
  virtual FileResult copy(const QString& from, const QString& to) = 0;
  /// Adds to a file, which is made where it is missing; all of `content` or, on failure, nothing.
  virtual FileResult append(const QString& path, const QByteArray& content) = 0;
  virtual FileResult rename(const QString& from, const QString& to) = 0;
  virtual FileResult remove(const QString& path) = 0;
  /// Makes a folder and those above it.
  virtual FileResult makeFolder(const QString& path) = 0;
  /// Invalid when there is no such file.
  virtual QDateTime modified(const QString& path) const = 0;
};

class SystemFiles final : public Files {
 public:
  bool exists(const QString& path) const override;
  [[nodiscard]] std::optional<QByteArray> read(const QString& path) const override;
  FileResult write(const QString& path, const QByteArray& content) override;
  FileResult copy(const QString& from, const QString& to) override;
  FileResult append(const QString& path, const QByteArray& content) override;
  FileResult rename(const QString& from, const QString& to) override;
  FileResult remove(const QString& path) override;
  FileResult makeFolder(const QString& path) override;
  QDateTime modified(const QString& path) const override;
};

}  // namespace tavoli
