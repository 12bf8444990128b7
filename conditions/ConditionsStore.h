// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conditions/PracticeConditions.h"
#include "data/Database.h"

// The learner's choices in the personal database: the course in BDIC, the conditions in a row of
// each dictionary.
namespace tavoli {

/// The last course; a new learner's row is made (高校). A NULL in the row leaves `before`'s
/// specialist dictionary.
CourseChoice readCourse(Database& database, const CourseChoice& before);

/// Stores the course; the specialist dictionary only along with course 専門.
[[nodiscard]] bool saveCourse(TableCursor& rsBDIC, const CourseChoice& course);

/// The conditions last used with a dictionary; its row is made with the defaults where it is
/// missing.
PracticeConditions loadConditions(TableCursor& rsTDIC, const QString& userId,
                                  const QString& defaultLessonFolder);

/// Stores the conditions in the dictionary's row.
[[nodiscard]] bool saveConditions(TableCursor& rsTDIC, const PracticeConditions& conditions);

}  // namespace tavoli
