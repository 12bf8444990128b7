// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "conditions/PracticeConditions.h"

// Whether a start that the learner named is there.
namespace tavoli {

class Files;

struct StartCheck {
  /// The key to start at: the named one, a lesson's sentence with its mark behind it.
  QString startKey;
  /// What to ask when it was not found; the learner may go on all the same.
  QString question;
  /// What hinders looking it up; the run cannot start.
  QString trouble;
};

StartCheck checkLessonStart(const QString& named, const PracticeConditions& conditions,
                            const QStringList& lessonLines);

/// Looks a word up in the course's own dictionary, a sentence by its number, in the database file
/// `path`.
StartCheck checkTableStart(const QString& named, const PracticeConditions& conditions,
                           const CourseChoice& course, const Files& files, const QString& path);

/// The message when the database file cannot be opened.
QString openTrouble(const QString& path, int errorNumber);
/// The message when a specialist dictionary is not in the database.
QString missingTable(const QString& specialTable);

}  // namespace tavoli
