// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

#include "contentbuilder/ContentNotes.h"
#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Coverage.h"
#include "contentbuilder/Problem.h"
#include "contentbuilder/Readings.h"
#include "system/Files.h"

namespace tavoli {

/// The content compiler's commands. Each returns what went wrong; nothing when all is well. The
/// problems' files are paths.
class ContentTool {
 public:
  explicit ContentTool(Files& files) : m_files(files) {}

  struct Findings {
    Problems problems;
    Warnings warnings;  ///< that are not accepted
    std::optional<Coverage> coverage;
  };

  /// Checks a content folder, and how much it holds of a list of headwords when one is given.
  Findings check(const QString& folder, const QString& list = QString()) const;

  /// Checks a content folder and compiles it. With a problem the target stays as it was; an
  /// existing target is replaced only with `force`.
  Problems build(const QString& folder, const QString& target, bool force);

  /// Writes a database's content into a folder, which is made where it is missing. An existing
  /// source is replaced only with `force`; without it nothing is written then.
  Problems dump(const QString& database, const QString& folder, bool force);

  struct ReadOut {
    std::vector<ContentReading> readings;
    Problems problems;
  };

  /// How the questions and meanings of a content folder are read aloud.
  ReadOut readings(const QString& folder, const KanaReading& reading) const;

 private:
  struct Content {
    std::vector<ContentTable> tables;
    Problems problems;
    Warnings warnings;
    ContentNotes notes;
  };

  Content read(const QString& folder) const;

  Files& m_files;
};

}  // namespace tavoli
