// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

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

/// Who keeps the learner's database from other programs during an update.
enum class KeptBy { Update, Caller };

/// The names of the files beside a learner's database that hold what is still to be stored in it.
/// With one, an update is refused.
QStringList unstoredBeside(const QString& learner);

/// Brings new content into a learner's database. What was learnt follows the text of each 小問, and
/// items that the new content has no more stay. `lessons`, when given, is the folder of lesson
/// files: entries that were renamed are renamed there, delivered lessons are replaced where nobody
/// has changed them.
ContentUpdate updateContent(Files& files, const Clock& clock, const QString& newContent,
                            const QString& learner, const QString& lessons,
                            KeptBy keptBy = KeptBy::Update);

}  // namespace tavoli
