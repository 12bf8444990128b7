#include <QFile>

#include <gtest/gtest.h>
#include <set>

#include "data/LessonFile.h"
#include "practice/PracticeSetLoader.h"
#include "system/Files.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::wordRecord;

class PracticeSetLoaderTest : public testing::Test {
 protected:
  PracticeSetLoaderTest() {
    conditions.lessonFolder = store.folder();
    conditions.lessonFile = u"lesson.tav"_s;
    conditions.memorySelect = MemorySelect::すべて;
  }

  void writeLesson(const QByteArray& content) {
    QFile file(conditions.lessonPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  PracticeSet load(const QString& startKey = startKeyFirst) {
    store.close();
    tables = LearningTables::open(store.path(), course).tables;
    PracticeSet set =
        PracticeSetLoader(*tables, course, conditions, files, random, dialogs, progress)
            .LoadPracticeSet(startKey);
    tables.reset();
    store.open();
    return set;
  }

  /// What each item stands for, its table's place in front.
  QString loaded(const QString& startKey = startKeyFirst) {
    const PracticeSet set = load(startKey);
    QStringList keys;
    for (int i = 1; i <= set.itemCount(); ++i)
      keys.append(stored(set.item(i).itemTable) + set.item(i).itemEnglish);
    return keys.join(u'|');
  }

  test::TestStore store;
  std::unique_ptr<LearningTables> tables;
  CourseChoice course;
  PracticeConditions conditions;
  SystemFiles files;
  test::FakeRandom random;
  test::ScriptedDialogs dialogs;
  test::FakeProgress progress;
};

TEST_F(PracticeSetLoaderTest, LooksWordsUpInTheCoursesOrderAndByTheirExactSpelling) {
  store.addWord(tableSTDIC, u"polish"_s, wordRecord({u"磨く"_s}));
  store.addWord(tableSTDIC, u"Polish"_s, wordRecord({u"ポーランドの"_s}));
  store.addWord(tableSTDIC, u"MAY"_s, wordRecord({u"大文字"_s}));
  store.addWord(tableJTDIC, u"may"_s, wordRecord({u"してもよい"_s}));
  store.addWord(tableJTDIC, u"polish"_s, wordRecord({u"中学の磨く"_s}));
  store.addWord(u"BusinessTOEIC"_s, u"asset"_s, wordRecord({u"資産"_s}));
  store.addSentence(u"000010"_s, test::sentenceRecord(u"問"_s, {u"is"_s}));
  writeLesson(
      "* comment\r\n! skipped\r\npolish\r\n  Polish \r\nmay\r\nasset\r\n\r\n000010\xA5 head\r\n"
      "000020\xA5\r\nzzzzz0\xA5\r\nzzzzzzzzzzzzzzzzzzzz1\r\n000010\r\n");
  conditions.selMethod = SelMethod::lessonInOrder;
  EXPECT_EQ(loaded(), u"1polish|1Polish|2may|B000010"_s);
  course = {Course::専門, u"BusinessTOEIC"_s};
  EXPECT_EQ(loaded(), u"2polish|2Polish|3may|1asset|B000010"_s);
}

TEST_F(PracticeSetLoaderTest, WhatALessonNamesTwiceIsOneItem) {
  for (const char16_t* key : {u"000010", u"000020"})
    store.addSentence(QString::fromUtf16(key), test::sentenceRecord(u"問"_s, {u"is"_s}));
  store.addWord(tableSTDIC, u"May"_s, wordRecord({u"五月"_s}));
  store.addWord(tableSTDIC, u"may"_s, wordRecord({u"してもよい"_s}));
  writeLesson("May\n000010\xA5 a\nmay\n000020\xA5\n000010\xA5 b\nMay\n");
  conditions.selMethod = SelMethod::lessonInOrder;
  PracticeSet set = load();
  for (const auto& [first, second] : {std::pair(1, 6), std::pair(2, 5)}) {
    CurrentRecord learnt = set.parsed(first);
    learnt.at(1).記 = MemoryState::うろ覚え;
    ASSERT_TRUE(set.RewriteRecord(first, learnt));
    EXPECT_EQ(set.parsed(second).記(1), MemoryState::うろ覚え);
  }
  EXPECT_EQ(set.parsed(3).記(1), MemoryState::全然);
  EXPECT_EQ(set.parsed(4).記(1), MemoryState::全然);
  EXPECT_EQ(set.itemCount(), 6) << "asked wherever it is named";
}

TEST_F(PracticeSetLoaderTest, FindsTheStartOfALesson) {
  for (const char16_t* word : {u"a1", u"a2", u"a3", u"a4"})
    store.addWord(tableSTDIC, QString::fromUtf16(word), wordRecord({u"意味"_s}),
                  QString::fromUtf16(word) == u"a3" ? MemoryState::完全 : MemoryState::全然);
  store.addSentence(u"000010"_s, test::sentenceRecord(u"問"_s, {u"is"_s}));
  writeLesson("*a2\na1\na2\na3\n000010\xA5\na4\n");
  conditions.selMethod = SelMethod::lessonInOrder;
  conditions.memorySelect = MemorySelect::全然とうろ覚え;
  const struct {
    const char* name;
    const char16_t* key;
    int startIndex;
  } cases[] = {{"from the first", u"000000", 1},
               {"a line in the middle", u"a2", 2},
               {"a start that the filter rejects: the item before it", u"a3", 2},
               {"a sentence", u"000010･", 3},
               {"a sentence by its number alone", u"000010", 3},
               {"never the last line", u"a4", 1},
               {"not in the lesson", u"b", 1}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(load(QString::fromUtf16(c.key)).startIndex, c.startIndex);
  }
}

TEST_F(PracticeSetLoaderTest, CountsRowsReadNotRowsKept) {
  for (int i = 0; i < 30; ++i)
    store.addWord(tableSTDIC, u"w"_s + digits(i, 2), wordRecord({u"意味"_s}),
                  i % 10 == 0 ? MemoryState::全然 : MemoryState::完全, i % 20);
  store.addWord(tableSTDIC, u"～ or so"_s, wordRecord({u"～かそこら"_s}));
  conditions.memorySelect = MemorySelect::全然;
  conditions.maxLoadWords = 22;
  EXPECT_EQ(loaded(), u"1～ or so|1w00|1w10|1w20"_s);
  EXPECT_EQ(dialogs.shown.last(), u"最大読込数 22 のうち 4が練習条件を満足しました。"_s);
  EXPECT_EQ(loaded(u"w10"_s), u"1w10|1w20"_s);
  conditions.levelFrom = u"10"_s;
  EXPECT_EQ(loaded(), u"1w10"_s);
  conditions.levelFrom = u"00"_s;
  conditions.levelTo = u"09"_s;
  EXPECT_EQ(load().itemCount(), 3);
  conditions.levelTo = u"10"_s;
  conditions.maxLoadWords = 5000;
  EXPECT_EQ(load().itemCount(), 4) << "the walk ends at the reserved rows";
  EXPECT_EQ(progress.total, 5000);
  EXPECT_TRUE(progress.ended);
}

TEST_F(PracticeSetLoaderTest, KeepsSentencesWithinTheirCourse) {
  for (const char16_t* key : {u"000010", u"499990", u"500010", u"899990", u"900010", u"A00010"})
    store.addSentence(QString::fromUtf16(key), test::sentenceRecord(u"問"_s, {u"is"_s}));
  store.addSentence(rowPassword, u"secret"_s);
  conditions.selMethod = SelMethod::sentencesInOrder;
  conditions.levelTo = u"99"_s;
  const struct {
    Course course;
    const char16_t* start;
    const char16_t* expected;
  } cases[] = {{Course::中学, u"000000", u"B000010|B499990"},
               {Course::中学, u"000011･彼は", u"B499990"},
               {Course::高校, u"000000", u"B500010|B899990"},
               {Course::高校, u"apple", u"B500010|B899990"},
               {Course::専門, u"000000", u"B900010|BA00010"}};
  for (const auto& c : cases) {
    course = {c.course, u"BusinessTOEIC"_s};
    EXPECT_EQ(loaded(QString::fromUtf16(c.start)), QString::fromUtf16(c.expected));
  }
  EXPECT_TRUE(dialogs.shown.isEmpty());
}

TEST_F(PracticeSetLoaderTest, StopsWhenTheLearnerCancels) {
  QByteArray lesson;
  for (int i = 0; i < 30'000; ++i) lesson += "word\n";
  store.addWord(tableSTDIC, u"word"_s, wordRecord({u"語"_s}));
  writeLesson(lesson);
  conditions.selMethod = SelMethod::lessonInOrder;
  progress.stopAt = 2001;
  EXPECT_EQ(load().itemCount(), 2000);
  EXPECT_EQ(progress.total, maxLessonLines) << "a lesson's further lines are left out";
  progress.stopAt = 0;
  EXPECT_EQ(load().itemCount(), maxItems);
}

TEST_F(PracticeSetLoaderTest, UnreadableLessonsGiveAnEmptySet) {
  conditions.selMethod = SelMethod::lessonInOrder;
  EXPECT_EQ(load().itemCount(), 0) << "missing";
  writeLesson(QByteArray("\0\0word\n", 7));
  EXPECT_EQ(load().itemCount(), 0) << "no text";
  writeLesson(QByteArray());
  EXPECT_EQ(load().itemCount(), 0) << "empty";
}

TEST(PracticeSetTest, ShufflingOnlyPermutesWhatIsBehindTheStart) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    test::FakeRandom random(seed);
    PracticeSet set;
    for (int i = 1; i <= 50; ++i) {
      PracticeItem item;
      item.itemTimes = i;
      set.append(item);
    }
    set.startIndex = 10;
    set.ShufflePracticeSet(random);
    std::set<int> seen;
    int moved = 0;
    for (int i = 1; i <= 50; ++i) {
      if (i <= 10) EXPECT_EQ(set.item(i).itemTimes, i);
      moved += set.item(i).itemTimes != i;
      seen.insert(set.item(i).itemTimes);
    }
    EXPECT_EQ(seen.size(), 50);
    EXPECT_GT(moved, 20);
  }
}

}  // namespace
}  // namespace tavoli
