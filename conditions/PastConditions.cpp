// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/PastConditions.h"

#include "data/LearnerFiles.h"
#include "data/Text.h"
#include "data/TextFile.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QChar characterAt(const QString& line, qsizetype position) {
  return line.size() >= position ? line[position - 1] : QChar(u' ');
}

}  // namespace

QString pastConditionsLine(QDate date, const CourseChoice& course, const PracticeConditions& c) {
  // From here on the line is the record of the tables with other things before and behind.
  const QString record = encodeConditions(c);
  return date.toString(u"yyyy/MM/dd"_s) + stored(course.COURSE) + cut(record, 10, 174) +
         fixedWidth(course.specialTable, 25) + c.lessonFolder + fieldMark + c.lessonFile;
}

PastRun lastRun(const CourseChoice& course, const PracticeConditions& c) {
  return {QString(),      course.COURSE,  c.selMethod,         c.startMode,
          c.startEnglish, c.firstEnglish, c.lastEnglish,       c.memorySelect,
          c.levelFrom,    c.levelTo,      course.specialTable, c.lessonFile};
}

PastRun readConditions(const QString& line) {
  const auto text = [&](qsizetype position, int width) {
    return trimBlanks(cut(line, position, width));
  };
  PastRun run;
  run.date = text(1, 10);
  run.COURSE = codeOf<Course>(characterAt(line, 11));
  run.selMethod = codeOf<SelMethod>(characterAt(line, 13));
  run.startMode = codeOf<StartMode>(characterAt(line, 26));
  run.startEnglish = text(27, 50);
  run.firstEnglish = text(77, 50);
  run.lastEnglish = text(127, 50);
  run.memorySelect = codeOf<MemorySelect>(characterAt(line, 177));
  run.levelFrom = text(178, 2);
  run.levelTo = text(180, 2);
  run.specialTable = text(186, 25);
  const QString tail = cutFrom(line, 211);
  const qsizetype mark = tail.indexOf(fieldMark);
  if (mark >= 1) run.lessonFile = tail.sliced(mark + 1);
  return run;
}

QStringList pastConditions(const Files& files, const QString& path) {
  return readLines(files, path).value_or(QStringList()).mid(0, maxPastConditions);
}

QStringList listPastConditions(const QStringList& lines) {
  QStringList entries;
  QString letter;
  for (int n = 0; n < lines.size(); ++n) {
    const auto course = codeOf<Course>(characterAt(lines[n], 11));
    if (isCourse(course)) letter = factsOf(course).letter;
    entries.append(digits(n + 1, 3) + u"　"_s + cut(lines[n], 1, 10) + letter);
  }
  return entries;
}

bool appendPastConditions(Files& files, const QString& path, const QString& line) {
  const std::optional<QStringList> stored = readLines(files, path);
  if (!stored) return false;
  const QStringList lines = *stored + QStringList{line};
  const QString text =
      lines.mid(std::max<qsizetype>(0, lines.size() - maxPastConditions)).join(u'\n') + u'\n';
  return files.write(path, text.toUtf8()) == FileResult::Ok;
}

}  // namespace tavoli
