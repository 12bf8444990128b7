#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "conditions/ConditionsStore.h"
#include "conditions/ConditionsText.h"
#include "conditions/NumberField.h"
#include "conditions/PastConditions.h"
#include "conditions/StartList.h"
#include "data/Text.h"
#include "system/Files.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

/// A record of no standard values, its fields at their positions.
const QString record = u"taro    2042499010   c:3"_s + fixedWidth(u"   120･彼は", 50) +
                       fixedWidth(u"000120･", 50) + fixedWidth(u"look forward to ～ing", 50) +
                       u"5039902981.25210.7599953421/home/太郎/Tavoliﾚｯｽﾝ|動詞.tav"_s;

PracticeConditions unusual(const QString& text = record) {
  PracticeConditions c = decodeConditions(text, u"/default"_s);
  c.userId = u"taro"_s;
  return c;
}

TEST(ConditionsTest, KeepsEveryFieldAtItsPosition) {
  const PracticeConditions c = unusual();
  EXPECT_EQ(encodeConditions(c), record);
  EXPECT_EQ(c.maxLoadSent, 10);
  EXPECT_EQ(c.startMode, StartMode::named);
  EXPECT_EQ(startKeyOf(c), u"120･彼は"_s);
  EXPECT_EQ(c.lastEnglish, u"look forward to ～ing"_s);
  EXPECT_EQ(c.levelFrom, u"03"_s);
  EXPECT_EQ(c.targetSentA, 1.25);
  EXPECT_EQ(c.targetWordB, 99);
  EXPECT_EQ(c.firstRepeatSent, 3);
  EXPECT_EQ(c.lessonPath(), u"/home/太郎/Tavoliﾚｯｽﾝ/動詞.tav"_s);
}

TEST(ConditionsTest, ReadsShortAndOldRecords) {
  PracticeConditions c = unusual(QString());
  EXPECT_EQ(c.maxLoadWords, 0);
  EXPECT_EQ(c.startEnglish, QString());
  for (const char16_t* tail : {u"", u"C:\\old", u"|x.tav"}) {
    c = unusual(record.left(201) + QString::fromUtf16(tail));
    EXPECT_EQ(c.lessonPath(), u"/default/"_s) << qPrintable(QString::fromUtf16(tail));
  }
  const struct {
    QChar code;
    CompareMode mode;
    bool flag;
    QChar stored;
  } codes[] = {{u'0', CompareMode::caseIgnored, false, u'0'},
               {u'1', CompareMode::caseMatters, false, u'1'},
               {u'2', CompareMode::caseIgnored, true, u'2'},
               {u'3', CompareMode::caseMatters, true, u'3'},
               {u'x', CompareMode::caseMatters, true, u'3'}};
  for (const auto& code : codes) {
    c = unusual(record.left(200) + code.code + u'|');
    EXPECT_EQ(c.compareMode, code.mode);
    EXPECT_EQ(c.compareFlag, code.flag);
    EXPECT_EQ(encodeConditions(c)[200], code.stored);
  }
}

TEST(ConditionsTest, NoValueShiftsTheFieldsBehindIt) {
  PracticeConditions c = unusual();
  c.targetSentA = 12.5;
  c.targetSentB = 100;
  c.reviewCycle = 10;
  c.startEnglish = QString(80, u'あ');
  EXPECT_EQ(encodeConditions(c).sliced(74, 109), record.sliced(74, 109));
  EXPECT_EQ(encodeConditions(c).sliced(189), record.sliced(189));
}

TEST(ConditionsStoreTest, MakesTheMissingRowsAndKeepsThemPerDictionary) {
  test::TestStore store;
  CourseChoice course = readCourse(store.database(), CourseChoice());
  EXPECT_EQ(course.COURSE, Course::高校) << "a new learner";
  auto rsBDIC = store.database().OpenRecordset(tableBDIC);
  course = {Course::専門, u"BusinessTOEIC"_s};
  EXPECT_TRUE(saveCourse(*rsBDIC, course));
  EXPECT_TRUE(saveCourse(*rsBDIC, {Course::中学, u"other"_s}));
  course = readCourse(store.database(), CourseChoice());
  EXPECT_EQ(course.COURSE, Course::中学);
  EXPECT_EQ(course.specialTable, u"BusinessTOEIC"_s) << "kept beside another course";

  const QString lessons = u"/lessons"_s;
  auto rsTDIC = store.database().OpenRecordset(tableJTDIC);
  PracticeConditions c = loadConditions(*rsTDIC, u"taro"_s, lessons);
  EXPECT_EQ(c.lessonFolder, lessons);
  EXPECT_EQ(store.stored(tableJTDIC, rowConditions, field発同日コ), encodeConditions(c));
  c.memorySelect = MemorySelect::完全;
  EXPECT_TRUE(saveConditions(*rsTDIC, c));
  EXPECT_EQ(loadConditions(*rsTDIC, u"taro"_s, lessons).memorySelect, MemorySelect::完全);
}

TEST(PastConditionsTest, KeepsTheLastHundredRuns) {
  QTemporaryDir folder;
  SystemFiles files;
  const QString path = folder.filePath(u"TavoCond000"_s);
  const CourseChoice course{Course::専門, u"BusinessTOEIC"_s};
  EXPECT_TRUE(pastConditions(files, path).isEmpty());
  PracticeConditions c = unusual();
  c.startEnglish = u"bank"_s;
  for (int day = 1; day <= 103; ++day) {
    c.maxLoadSent = day;
    ASSERT_TRUE(appendPastConditions(
        files, path, pastConditionsLine(QDate(2026, 1, 1).addDays(day), course, c)));
  }
  const QStringList lines = pastConditions(files, path);
  ASSERT_EQ(lines.size(), 100);
  EXPECT_EQ(cut(lines.first(), 19, 5), u"4    "_s);
  EXPECT_EQ(listPastConditions(lines).last(), u"100　2026/04/14専"_s);
  const PastRun run = readConditions(lines.last());
  EXPECT_EQ(describePastRun(run), describePastRun(lastRun(course, c)));
  EXPECT_EQ(run.lessonFile, c.lessonFile);
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

using enum NumberField;

TEST(NumberFieldTest, HoldsEveryEntryAgainstItsBounds) {
  const struct {
    NumberField field;
    const char16_t* typed;
    const char16_t* standing;  ///< in the field after the key
    const char16_t* left;      ///< when the field is left
  } cases[] = {
      {LevelFrom, u"7", u"7", u"7"},
      {LevelFrom, u"abc", u"0", u"0"},
      {LevelTo, u"abc", u"9", u"9"},
      {LevelTo, u"100", u"10", u"10"},
      {ReviewCycle, u"５", u"5", u"5"},
      {ReviewCycle, u"10", u"3", u"3"},
      {ReviewCycle, u"", u"3", u"3"},
      {MaxLoadWords, u"24991", u"24990", u"24990"},
      {MaxLoadWords, u"5", u"5", u"10"},
      {MaxLoadWords, u"", u"", u"200"},
      {MaxLoadSent, u"0", u"0", u"10"},
      {TargetSentA, u"0.1", u"0.1", u"0.1"},
      {TargetSentA, u"9.99", u"9.99", u"9.99"},
      {TargetSentA, u".25", u".25", u"0.25"},
      {TargetSentA, u"0", u"0", u"0.5"},
      {TargetSentA, u"0.05", u"0.5", u"0.5"},
      {TargetWordA, u"1.234", u"0.5", u"0.5"},
      {TargetWordA, u"1e0", u"0.5", u"0.5"},
      {TargetSentB, u"0", u"20", u"20"},
      {TargetWordB, u"99", u"99", u"99"},
  };
  for (const auto& c : cases) {
    PracticeConditions conditions;
    const QString typed = QString::fromUtf16(c.typed);
    EXPECT_EQ(typeNumber(c.field, typed, conditions), QString::fromUtf16(c.standing))
        << qPrintable(typed);
    EXPECT_EQ(numberText(c.field, conditions), QString::fromUtf16(c.left)) << qPrintable(typed);
    const PracticeConditions read = decodeConditions(encodeConditions(conditions), QString());
    EXPECT_EQ(numberText(c.field, read), QString::fromUtf16(c.left)) << "not in the record";
  }
}

TEST(NumberFieldTest, ArrowsStepWithinTheBounds) {
  const struct {
    NumberField field;
    const char16_t* from;
    int steps;
    const char16_t* to;
  } cases[] = {
      {MaxLoadWords, u"200", 1, u"300"}, {MaxLoadWords, u"100", 1, u"110"},
      {MaxLoadWords, u"110", -1, u"10"}, {MaxLoadWords, u"24950", 1, u"24990"},
      {MaxLoadSent, u"10", -1, u"10"},   {TargetSentA, u"0.5", 1, u"0.55"},
      {TargetSentA, u"0.1", -1, u"0.1"}, {TargetWordA, u"9.99", 1, u"9.99"},
      {TargetWordB, u"99", 1, u"99"},    {LevelFrom, u"9", 1, u"10"},
  };
  for (const auto& c : cases) {
    PracticeConditions conditions;
    typeNumber(c.field, QString::fromUtf16(c.from), conditions);
    stepNumber(c.field, c.steps, conditions);
    EXPECT_EQ(numberText(c.field, conditions), QString::fromUtf16(c.to));
  }
}

QStringList lines(const char16_t* text) {
  return QString::fromUtf16(text).split(u'\n');
}

TEST(StartListTest, LeavesOutTheCommentsOfALesson) {
  EXPECT_EQ(lessonStarts(lines(u"*見出し\n000120･彼は学生\n  go abroad \n!メモ\n000120")),
            lines(u"000120･\ngo abroad\n!メモ\n000120"));
  EXPECT_TRUE(lessonStarts({}).isEmpty());
}

TEST(StartListTest, ListsADictionaryUpToItsEndMark) {
  test::TestStore store;
  for (const QString& word : lines(u"zoo\n～ or so\nApple\nzzzz\nzzzzzzzzzzzzzzzzzzzz2"))
    store.addWord(tableJTDIC, word, QString());
  EXPECT_EQ(wordStarts(store.database(), tableJTDIC),
            lines(u"～ or so\nApple\nzoo\nzzzzzzzzzzzzzzzzzzzz1"));
  EXPECT_EQ(wordStarts(store.database(), u"Vanished"_s), std::nullopt);
}

TEST(StartListTest, ListsTheSentencesFromTheCoursesFirstToTheLast) {
  test::TestStore store;
  for (const char16_t* key : {u"000120", u"500010", u"900010", u"120"})
    store.addSentence(QString::fromUtf16(key), u"彼は[学生]ではありません。|001|"_s);
  store.addSentence(u"900020"_s, u"短い"_s);
  store.addSentence(rowPassword, u"secret"_s);
  const QStringList all = lines(
      u"000120･彼は[学生]ではあり\n   120･彼は[学生]ではあり\n500010･彼は[学生]ではあり\n"
      u"900010･彼は[学生]ではあり\n900020･短い");
  EXPECT_EQ(sentenceStarts(store.database(), Course::中学), all);
  EXPECT_EQ(sentenceStarts(store.database(), Course::高校), all.mid(2));
  EXPECT_EQ(sentenceStarts(store.database(), Course::専門), all);
}

}  // namespace
}  // namespace tavoli
