// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QMap>
#include <QString>

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "data/Database.h"

namespace tavoli {

/// What a database remembers of its content beside the items, by name: its number, what was
/// renamed, and, by their paths, how the sources were laid out and the text of the lessons.
using ContentNotes = QMap<QString, QString>;

/// The files that become notes as they are.
inline const QString numberFile = QStringLiteral("number.txt");
inline const QString renamesFile = QStringLiteral("renames.tsv");
inline const QString lessonsFolder = QStringLiteral("lessons");

bool isLesson(const QString& name);

/// The notes of a content folder. `files`: the number, the renames and the lessons. Mistakes in the
/// first two are added to `problems`.
ContentNotes makeNotes(const std::vector<SourceFile>& files,
                       const std::vector<ContentTable>& tables, Problems& problems);

/// Puts the notes in the place of those that the database has.
[[nodiscard]] bool storeNotes(const ContentNotes& notes, Database& database);
/// None for a database that was made without.
ContentNotes notesIn(Database& database);

/// Which content it is; it rises with every delivery. 0 for content that has none.
int contentNumber(const ContentNotes& notes);
/// The same of a database.
int contentNumber(Database& database);

/// The number of the content that the learner did not want, until an update; 0 where there is none.
int declinedNumber(Database& database);
[[nodiscard]] bool storeDeclined(int number, Database& database);

/// Old keys and numbers with those that have taken their place.
class Renames {
 public:
  explicit Renames(const ContentNotes& notes);
  /// What the key is called now, which may be itself.
  QString newest(const QString& key) const;
  /// All that were renamed.
  QStringList olds() const { return m_new.keys(); }

 private:
  QHash<QString, QString> m_new;
};

}  // namespace tavoli
