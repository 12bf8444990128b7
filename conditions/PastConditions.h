// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include "conditions/PracticeConditions.h"

namespace tavoli {

class Files;

// The conditions of the last hundred runs, one line of fixed positions each, oldest first, in the
// learner's file TavoCond<id> (UTF-8; older files in code page 932 are read too).

/// What is shown of an earlier run.
struct PastRun {
  QString date;  ///< yyyy/mm/dd
  Course COURSE{};
  SelMethod selMethod{};
  StartMode startMode{};
  QString startEnglish;
  QString firstEnglish;
  QString lastEnglish;
  MemorySelect memorySelect{};
  QString levelFrom;
  QString levelTo;
  QString specialTable;
  QString lessonFile;  ///< empty when the line names none
};

QString pastConditionsLine(QDate date, const CourseChoice& course,
                           const PracticeConditions& conditions);

/// The run whose conditions a dictionary's record holds; it knows no date.
PastRun lastRun(const CourseChoice& course, const PracticeConditions& conditions);

/// Takes a line apart; what it is too short for stays empty or blank.
PastRun readConditions(const QString& line);

/// The stored lines, at most a hundred; none when there is no such file.
QStringList pastConditions(const Files& files, const QString& path);

/// How each stored line is offered in a list: its number in three digits, the date and a letter for
/// the course.
QStringList listPastConditions(const QStringList& lines);

/// Adds a line to the file; of more than a hundred the oldest go. A file that is there but cannot
/// be read stays as it is, and the result is false, as when it cannot be written.
[[nodiscard]] bool appendPastConditions(Files& files, const QString& path, const QString& line);

}  // namespace tavoli
