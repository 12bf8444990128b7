#pragma once

#include <QString>

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "system/Files.h"

namespace tavoli {

/// The content compiler's commands. Each returns what went wrong; nothing when all is well. The
/// problems' files are paths.
class ContentTool {
 public:
  explicit ContentTool(Files& files) : m_files(files) {}

  /// Checks a content folder.
  Problems check(const QString& folder) const;

  /// Checks a content folder and compiles it. With a problem the target stays as it was; an
  /// existing target is replaced only with `force`.
  Problems build(const QString& folder, const QString& target, bool force);

  /// Writes a database's content into a folder, which is made where it is missing. An existing
  /// source is replaced only with `force`; without it nothing is written then.
  Problems dump(const QString& database, const QString& folder, bool force);

 private:
  std::vector<ContentTable> read(const QString& folder, Problems& problems) const;

  Files& m_files;
};

}  // namespace tavoli
