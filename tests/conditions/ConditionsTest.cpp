#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "conditions/ConditionsStore.h"
#include "conditions/PastConditions.h"
#include "data/Text.h"
#include "system/Files.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

PracticeConditions unusual() {
  PracticeConditions c;
  c.userId = u"taro"_s;
  c.selMethod = u'4';
  c.maxLoadWords = 24990;
  c.maxLoadSent = 10;
  c.startMode = u'3';
  c.startEnglish = u"   120･彼は"_s;
  c.firstEnglish = u"000120･"_s;
  c.lastEnglish = u"look forward to ～ing"_s;
  c.memorySelect = u'5';
  c.levelFrom = u"03"_s;
  c.levelTo = u"99"_s;
  c.targetSentA = 1.25;
  c.targetWordB = 99;
  c.reviewCycle = 9;
  c.firstRepeatWord = 5;
  c.compareMode = u'1';
  c.compareFlag = false;
  c.lessonFolder = u"/home/太郎/Tavoliﾚｯｽﾝ"_s;
  c.lessonFile = u"動詞.tav"_s;
  return c;
}

TEST(ConditionsTest, KeepsEveryFieldAtItsPosition) {
  const PracticeConditions c = unusual();
  const QString record = encodeConditions(c);
  const struct {
    int position, width;
    const char* content;
  } fields[] = {
      {1, 8, "taro    "},       {9, 3, "204"},      {12, 10, "2499010   "}, {22, 3, "c:3"},
      {25, 10, "   120･彼は "}, {75, 7, "000120･"}, {125, 5, "look "},      {175, 5, "50399"},
      {184, 6, "1.2520"},       {190, 6, "0.5099"}, {196, 5, "95121"},      {201, 1, "1"}};
  for (const auto& field : fields)
    EXPECT_EQ(cut(record, field.position, field.width), QString::fromUtf8(field.content))
        << "at " << field.position;
  EXPECT_EQ(cutFrom(record, 202), u"/home/太郎/Tavoliﾚｯｽﾝ|動詞.tav"_s);

  EXPECT_EQ(startKeyOf(c), u"120･彼は"_s);
  PracticeConditions read = decodeConditions(record, u"/default"_s);
  read.userId = c.userId;
  EXPECT_EQ(encodeConditions(read), record);
}

TEST(ConditionsTest, ReadsShortAndOldRecords) {
  const QString record = encodeConditions(unusual());
  PracticeConditions c = decodeConditions(QString(), u"/default"_s);
  EXPECT_EQ(c.maxLoadWords, 0);
  EXPECT_EQ(c.startEnglish, QString());
  EXPECT_EQ(c.lessonFolder, u"/default"_s);
  c = decodeConditions(record.left(201) + u"C:\\old"_s, u"/default"_s);
  EXPECT_EQ(c.lessonFolder, u"/default"_s) << "a tail without a mark";
  EXPECT_EQ(c.lessonFile, QString());
  const struct {
    const char16_t* code;
    QChar mode;
    bool flag;
  } codes[] = {{u"0", u'0', false}, {u"1", u'1', false}, {u"2", u'0', true},
               {u"3", u'1', true},  {u"x", u'1', true},  {u" ", u'1', true}};
  for (const auto& code : codes) {
    c = decodeConditions(record.left(200) + QString::fromUtf16(code.code) + u'|', QString());
    EXPECT_EQ(c.compareMode, code.mode);
    EXPECT_EQ(c.compareFlag, code.flag);
  }
}

TEST(ConditionsTest, NoValueShiftsTheFieldsBehindIt) {
  PracticeConditions c = unusual();
  c.targetSentA = 12.5;
  c.targetSentB = 100;
  c.reviewCycle = 10;
  c.startEnglish = QString(80, u'あ');
  const QString record = encodeConditions(c);
  EXPECT_EQ(cut(record, 175, 1), u"5"_s);
  EXPECT_EQ(cutFrom(record, 202), u"/home/太郎/Tavoliﾚｯｽﾝ|動詞.tav"_s);
}

TEST(ConditionsStoreTest, MakesTheMissingRowsAndKeepsThemPerDictionary) {
  test::TestStore store;
  CourseChoice course = readCourse(store.database(), CourseChoice());
  EXPECT_EQ(course.COURSE, course高校) << "a new learner";
  auto rsBDIC = store.database().OpenRecordset(tableBDIC);
  course = {course専門, u"BusinessTOEIC"_s};
  EXPECT_TRUE(saveCourse(*rsBDIC, course));
  EXPECT_TRUE(saveCourse(*rsBDIC, {course中学, u"other"_s}));
  course = readCourse(store.database(), CourseChoice());
  EXPECT_EQ(course.COURSE, course中学);
  EXPECT_EQ(course.specialTable, u"BusinessTOEIC"_s) << "kept beside another course";

  const QString lessons = u"/lessons"_s;
  auto rsTDIC = store.database().OpenRecordset(tableJTDIC);
  PracticeConditions c = loadConditions(*rsTDIC, u"taro"_s, lessons);
  EXPECT_EQ(c.lessonFolder, lessons);
  EXPECT_EQ(store.stored(tableJTDIC, rowConditions, field発同日コ), encodeConditions(c));
  c.memorySelect = u'3';
  EXPECT_TRUE(saveConditions(*rsTDIC, c));
  EXPECT_EQ(loadConditions(*rsTDIC, u"taro"_s, lessons).memorySelect, u'3');
}

TEST(PastConditionsTest, KeepsTheLastHundredRuns) {
  QTemporaryDir folder;
  SystemFiles files;
  const QString path = folder.filePath(u"TavoCond000"_s);
  EXPECT_TRUE(pastConditions(files, path).isEmpty());
  PracticeConditions c = unusual();
  for (int day = 1; day <= 103; ++day) {
    c.maxLoadSent = day;
    ASSERT_TRUE(appendPastConditions(
        files, path,
        pastConditionsLine(QDate(2026, 1, 1).addDays(day), {course専門, u"BusinessTOEIC"_s}, c)));
  }
  const QStringList lines = pastConditions(files, path);
  ASSERT_EQ(lines.size(), 100);
  EXPECT_EQ(cut(lines.first(), 19, 5), u"4    "_s);
  EXPECT_EQ(listPastConditions(lines).last(), u"100　2026/04/14専"_s);
  const PastRun run = readConditions(lines.last());
  EXPECT_EQ(run.selMethod, u'4');
  EXPECT_EQ(run.memorySelect, u'5');
  EXPECT_EQ(run.levelTo, u"99"_s);
  EXPECT_EQ(run.specialTable, u"BusinessTOEIC"_s);
  EXPECT_EQ(run.lessonFile, u"動詞.tav"_s);
  for (int length = 0; length < lines.last().size(); ++length)
    EXPECT_TRUE(readConditions(lines.last().left(length)).date.size() <= 10);
}

TEST(PastConditionsTest, NeverOverwritesAFileItCannotRead) {
  QTemporaryDir folder;
  SystemFiles files;
  const QString path = folder.filePath(u"TavoCond000"_s);
  const QByteArray binary("\0\1\2", 3);
  ASSERT_EQ(files.write(path, binary), FileResult::Ok);
  EXPECT_FALSE(appendPastConditions(files, path, u"line"_s));
  EXPECT_EQ(files.read(path), binary);
}

}  // namespace
}  // namespace tavoli
