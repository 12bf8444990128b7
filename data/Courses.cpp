// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Courses.h"

#include <algorithm>

#include "data/Schema.h"

using namespace Qt::StringLiterals;

namespace tavoli {

const std::vector<CourseFacts>& courses() {
  static const std::vector<CourseFacts> all = {
      {Course::中学,
       u"中学"_s,
       u"中"_s,
       tableJTDIC,
       u"000000"_s,
       u"499999"_s,
       u"500000"_s,
       u"00000"_s,
       {Course::中学, Course::高校}},
      {Course::高校,
       u"高校"_s,
       u"高"_s,
       tableSTDIC,
       u"500000"_s,
       u"899999"_s,
       u"900000"_s,
       u"50000"_s,
       {Course::高校, Course::中学}},
      {Course::専門,
       u"専門"_s,
       u"専"_s,
       QString(),
       u"900000"_s,
       u"999999"_s,
       u"Z00000"_s,
       QString(),
       {Course::専門, Course::高校, Course::中学}},
  };
  return all;
}

namespace {

const CourseFacts* find(Course COURSE) {
  const auto found = std::find_if(courses().begin(), courses().end(),
                                  [&](const CourseFacts& facts) { return facts.code == COURSE; });
  return found == courses().end() ? nullptr : &*found;
}

}  // namespace

bool isCourse(Course COURSE) {
  return find(COURSE) != nullptr;
}

const CourseFacts& factsOf(Course COURSE) {
  const CourseFacts* facts = find(COURSE);
  return facts ? *facts : courses().back();
}

QString courseName(Course COURSE) {
  const CourseFacts* facts = find(COURSE);
  return facts ? facts->name : QString();
}

QStringList prWhichTable(const CourseChoice& course) {
  QStringList tables;
  for (const Course dictionary : factsOf(course.COURSE).dictionaries) {
    const QString& own = factsOf(dictionary).table;
    tables.append(own.isEmpty() ? course.specialTable : own);
  }
  return tables;
}

Course dictionaryAt(Course COURSE, TableCode place) {
  const std::vector<Course>& dictionaries = factsOf(COURSE).dictionaries;
  const auto index = static_cast<size_t>(std::max(0, placeOf(place) - 1));
  return index < dictionaries.size() ? dictionaries[index] : Course::専門;
}

std::optional<Course> courseOfSentence(QChar initial) {
  for (const CourseFacts& facts : courses())
    if (facts.firstSentence[0] <= initial && initial <= facts.lastSentence[0]) return facts.code;
  return std::nullopt;
}

}  // namespace tavoli
