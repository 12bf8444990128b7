// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "contentbuilder/Problem.h"

namespace tavoli {

class Clock;
class Files;

/// What an update did.
struct ContentUpdate {
  Problems problems;  ///< with one, the learner's database is what it was
  int added = 0;
  int changed = 0;  ///< renamed ones too
  int renamed = 0;
  QString backup;           ///< the database as it was
  Problems untouched = {};  ///< rows that are damaged, and lessons that could not be written
};

/// Brings new content into a learner's database. What was learnt follows the text of each 小問, and
/// items that the new content has no more stay. `lessons`, when given, is the folder of lesson
/// files: entries that were renamed are renamed there, delivered lessons are replaced where nobody
/// has changed them.
ContentUpdate updateContent(Files& files, const Clock& clock, const QString& newContent,
                            const QString& learner, const QString& lessons);

}  // namespace tavoli
