// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/ConditionsStore.h"

#include "data/Schema.h"
#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

CourseChoice readCourse(Database& database, const CourseChoice& before) {
  CourseChoice course = before;
  const auto rsBDIC = database.OpenRecordset(tableBDIC);
  if (!rsBDIC) return course;
  rsBDIC->Seek(SeekOp::Equal, rowCourse);
  if (rsBDIC->NoMatch()) {
    course = CourseChoice();
    rsBDIC->AddNew();
    rsBDIC->setValue(field文番, rowCourse);
    rsBDIC->setValue(field記憶, QString(stored(course.COURSE)));
    rsBDIC->setValue(field回数, u"00"_s);
    rsBDIC->setValue(field問正コ, QString());
    // Standard values count without being stored.
    static_cast<void>(rsBDIC->Update());
    return course;
  }
  const QString code = rsBDIC->text(field記憶);
  course.COURSE =
      code.size() == 1 && isCourse(codeOf<Course>(code)) ? codeOf<Course>(code) : Course::高校;
  course.specialTable = trimBlanks(rsBDIC->value(field問正コ).value_or(before.specialTable));
  return course;
}

bool saveCourse(TableCursor& rsBDIC, const CourseChoice& course) {
  if (!rsBDIC.EditOrAddNew(rowCourse, {{field回数, u"00"_s}})) return false;
  rsBDIC.setValue(field記憶, QString(stored(course.COURSE)));
  if (course.COURSE == Course::専門) rsBDIC.setValue(field問正コ, trimBlanks(course.specialTable));
  return rsBDIC.Update();
}

PracticeConditions loadConditions(TableCursor& rsTDIC, const QString& userId,
                                  const QString& defaultLessonFolder) {
  rsTDIC.Seek(SeekOp::Equal, rowConditions);
  PracticeConditions conditions;
  if (rsTDIC.NoMatch()) {
    conditions.userId = userId;
    conditions.lessonFolder = defaultLessonFolder;
    rsTDIC.AddNew();
    rsTDIC.setValue(field英語, rowConditions);
    rsTDIC.setValue(field発同日コ, encodeConditions(conditions));
    rsTDIC.setValue(fieldレベル, u"00"_s);
    rsTDIC.setValue(field記憶, QString(stored(MemoryState::全然)));
    rsTDIC.setValue(field回数, u"00"_s);
    static_cast<void>(rsTDIC.Update());  // as for the course
    return conditions;
  }
  conditions = decodeConditions(rsTDIC.text(field発同日コ), defaultLessonFolder);
  conditions.userId = userId;
  return conditions;
}

bool saveConditions(TableCursor& rsTDIC, const PracticeConditions& conditions) {
  if (!rsTDIC.EditOrAddNew(rowConditions)) return false;
  rsTDIC.setValue(field発同日コ, encodeConditions(conditions));
  return rsTDIC.Update();
}

}  // namespace tavoli
