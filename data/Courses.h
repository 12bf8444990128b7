// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include "data/Codes.h"

namespace tavoli {

/// Which course was practised last, and with which specialist dictionary.
struct CourseChoice {
  Course COURSE = Course::高校;
  QString specialTable;  ///< a table's name, at most 25 characters
};

/// All that is known of a course. Sentences belong to it by the first digit of their number.
struct CourseFacts {
  Course code;
  QString name;
  QString letter;  ///< its name in one character
  QString table;   ///< its own dictionary; empty where the learner names one
  QString firstSentence;
  QString lastSentence;
  QString sentencesEnd;              ///< the first key behind its sentences
  QString firstStart;                ///< where its sentences begin among the starts to choose from
  std::vector<Course> dictionaries;  ///< whose dictionaries it uses, in look-up order

  bool holds(const QString& 文番) const { return firstSentence <= 文番 && 文番 <= lastSentence; }
};

/// The three courses in the order of their codes.
const std::vector<CourseFacts>& courses();

/// Whether a code stands for a course.
bool isCourse(Course COURSE);

/// What is known of a course; of 専門 for an unknown code.
const CourseFacts& factsOf(Course COURSE);

/// The name of a course; empty for an unknown code.
QString courseName(Course COURSE);

/// The dictionaries of a course in look-up order, two or three of them.
QStringList prWhichTable(const CourseChoice& course);

/// Whose dictionary stands at a place of a course's look-up order: 専門 behind its end.
Course dictionaryAt(Course COURSE, TableCode place);

/// The course of a sentence by the first character of its number; nothing for one that belongs to
/// none.
std::optional<Course> courseOfSentence(QChar initial);

}  // namespace tavoli
