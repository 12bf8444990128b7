#include <gtest/gtest.h>

#include "progress/ProgressRecord.h"
#include "progress/ProgressReport.h"
#include "progress/ProgressStore.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

/// The record of 花子 with these 306 digits as its numbers.
QString recordOf(const QString& numbers) {
  return u"花子      2"_s + numbers + u"2026/12/3123:582027/01/0100:03"_s;
}

TEST(ProgressRecordTest, ComesBackFromItsText) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(seed);
  std::mt19937 engine(seed);
  RunClock times;
  times.開始時刻 = QDateTime(QDate(2026, 12, 31), QTime(23, 58));
  times.終了時刻 = QDateTime(QDate(2027, 1, 1), QTime(0, 3));
  for (int round = 0; round < 200; ++round) {
    QString numbers;
    while (numbers.size() < 306) numbers += digits(static_cast<int>(engine() % 10), 1);
    const StoredProgress stored = parseProgressRecord(recordOf(numbers));
    EXPECT_EQ(buildProgressRecord(u"花子"_s, stored.counters, times), recordOf(numbers));
    EXPECT_EQ(stored.previousStart, times.開始時刻);
  }
}

TEST(ProgressRecordTest, HasFixedPlaces) {
  ProgressCounters counters;
  counters.記憶単熟[中学] = {1, 2, 3};
  counters.記憶文[専門][0] = 6;
  counters.時間[高校][1] = 1234567890;
  counters.回数[専門][2] = 123456;
  const QString record = buildProgressRecord(QString(), counters, RunClock());
  EXPECT_EQ(record.mid(9, 5), u"00001"_s);
  EXPECT_EQ(record.mid(111, 5), u"00002"_s);
  EXPECT_EQ(record.mid(213, 5), u"00003"_s);
  EXPECT_EQ(record.mid(9 + 25, 5), u"00006"_s);
  EXPECT_EQ(record.mid(111 + 39, 9), u"999999999"_s) << "no room for more";
  EXPECT_EQ(record.mid(213 + 97, 5), u"99999"_s);
}

TEST(ProgressRecordTest, ReadsZerosWhereThereIsNoNumber) {
  const QString record = recordOf(u"1x345 -123"_s + QString(296, u'1'));
  const StoredProgress damaged = parseProgressRecord(record.first(302));
  EXPECT_EQ(damaged.counters.記憶単熟[中学][0], 0);
  EXPECT_EQ(damaged.counters.記憶単熟[高校][0], 0);
  EXPECT_EQ(damaged.counters.記憶単熟[専門][0], 11111) << "the next one has its place";
  EXPECT_EQ(damaged.counters.回数[中学][2], 0) << "the text ends within it";
  EXPECT_FALSE(damaged.previousStart.isValid());
}

TEST(ProgressCountersTest, CountEveryItemInItsCourseAndItsLevel) {
  const struct {
    const char* name;
    Course COURSE;
    TableCode itemTable;
    const char16_t* key;
    Level course;
    std::optional<Level> words, sentences;
  } cases[] = {
      {"中学, first", Course::中学, TableCode::first, u"a", 中学, 中学, {}},
      {"中学, second", Course::中学, TableCode::second, u"a", 中学, 高校, {}},
      {"高校, first", Course::高校, TableCode::first, u"a", 高校, 高校, {}},
      {"高校, second", Course::高校, TableCode::second, u"a", 高校, 中学, {}},
      {"専門, first", Course::専門, TableCode::first, u"a", 専門, 専門, {}},
      {"専門, second", Course::専門, TableCode::second, u"a", 専門, 高校, {}},
      {"専門, third", Course::専門, TableCode::third, u"a", 専門, 中学, {}},
      {"sentence 0", Course::専門, TableCode::sentences, u"000010", 専門, {}, 中学},
      {"sentence 4", Course::中学, TableCode::sentences, u"499999", 中学, {}, 中学},
      {"sentence 5", Course::中学, TableCode::sentences, u"500000", 中学, {}, 高校},
      {"sentence 8", Course::高校, TableCode::sentences, u"899999", 高校, {}, 高校},
      {"sentence 9", Course::高校, TableCode::sentences, u"900000", 高校, {}, 専門},
      {"sentence without a number", Course::高校, TableCode::sentences, u"x00000", 高校, {}, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const QString key = QString::fromUtf16(c.key);
    ProgressCounters expected;
    expected.回数[c.course][0] = 1;
    if (c.words) expected.回数単熟[*c.words][0] = 1;
    if (c.sentences) expected.回数文[*c.sentences][0] = 1;
    ProgressCounters counters;
    counters.countQuestion(c.COURSE, c.itemTable, key);
    EXPECT_TRUE(counters == expected);

    // 全然 to 完全: from the last number to the first.
    ProgressCounters learnt;
    learnt.記憶単熟.fill({0, 0, 1});
    learnt.記憶文.fill({0, 0, 1});
    ProgressCounters grown = learnt;
    if (c.words) grown.記憶単熟[*c.words] = {1, 0, 0};
    if (c.sentences) grown.記憶文[*c.sentences] = {1, 0, 0};
    MemoryGrowth growth;
    growth.move(c.COURSE, c.itemTable, key, MemoryState::全然, MemoryState::完全);
    growth.move(c.COURSE, c.itemTable, key, codeOf<MemoryState>(u'7'), MemoryState::完全);
    growth.move(c.COURSE, c.itemTable, key, MemoryState::うろ覚え, codeOf<MemoryState>(u'7'));
    growth.addTo(learnt);
    EXPECT_TRUE(learnt == grown);
  }
}

TEST(ProgressCountersTest, AMemoryCountOutOfRangeBecomesZero) {
  ProgressCounters counters;
  counters.記憶単熟[中学] = {32000, 0, 5};
  MemoryGrowth growth;
  growth.move(Course::中学, TableCode::first, QString(), MemoryState::うろ覚え, MemoryState::完全);
  growth.addTo(counters);
  EXPECT_EQ(counters.記憶単熟[中学], (Three{0, 0, 5}));
}

class ProgressStoreTest : public testing::Test {
 protected:
  bool load() {
    times.開始時刻 = clock.time;
    clock.time = clock.time.addSecs(40);
    backupDue = false;
    counters = {};
    return loadProgress(store.database(), {userId, COURSE, times}, clock, dialogs, counters,
                        backupDue);
  }
  QString storedRecord() {
    return store.stored(tableBDIC, rowProgress, field問正コ).value_or(QString());
  }

  test::TestStore store;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  QString userId = u"000"_s;
  Course COURSE = Course::高校;
  RunClock times;
  ProgressCounters counters;
  bool backupDue = false;
};

TEST_F(ProgressStoreTest, CountsTheTablesForANewLearner) {
  store.addWord(tableJTDIC, u"a"_s, QString(), MemoryState::全然);
  store.addWord(tableJTDIC, u"b"_s, QString(), MemoryState::完全);
  store.addWord(tableJTDIC, u"c"_s, QString(), codeOf<MemoryState>(u'7'));
  store.addWord(tableSTDIC, u"a"_s, QString(), MemoryState::うろ覚え);
  store.addWord(u"BusinessTOEIC"_s, u"a"_s, QString(), MemoryState::完全);
  for (const char16_t* 文番 : {u"000010", u"499999", u"500000", u"899999", u"900000", u"x00000"})
    store.addSentence(QString::fromUtf16(文番), QString(), MemoryState::うろ覚え);
  store.addSentence(u"zzz"_s, QString());
  store.addSentence(rowPassword, QString());
  ASSERT_TRUE(load());
  ProgressCounters expected;
  expected.記憶単熟[中学] = {1, 0, 1};
  expected.記憶単熟[高校] = {0, 1, 0};
  expected.記憶単熟[専門] = {1, 0, 0};
  expected.記憶文[中学] = {0, 2, 0};
  expected.記憶文[高校] = {0, 2, 0};
  expected.記憶文[専門] = {0, 1, 0};
  EXPECT_TRUE(counters == expected) << "and no time yet";
  EXPECT_FALSE(backupDue);
  EXPECT_EQ(storedRecord()[8], u'2');
  EXPECT_EQ(store.stored(tableBDIC, rowProgress, field回数), u"00"_s);
  ASSERT_TRUE(load());
  EXPECT_TRUE(counters == expected) << "found again";
}

TEST_F(ProgressStoreTest, RollsOverInALaterMonthOnly) {
  const struct {
    const char* name;
    QDate last, now;
    bool rolls;
  } cases[] = {
      {"the month's last day", {2026, 4, 1}, {2026, 4, 30}, false},
      {"the next month's first day", {2026, 4, 30}, {2026, 5, 1}, true},
      {"the year's end", {2026, 12, 31}, {2027, 1, 1}, true},
      {"two months skipped", {2026, 11, 30}, {2027, 2, 1}, true},
      {"the clock put back", {2026, 4, 1}, {2026, 3, 31}, false},
      {"put back by a year, to a later month's name", {2026, 4, 1}, {2025, 12, 1}, false},
      {"no date in the record", {}, {2026, 7, 1}, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ProgressCounters before;
    before.回数[高校] = {5, 3, 10};
    before.回数文[中学] = {1, 0, 0};
    before.時間[高校] = {100, 7, 20};
    before.記憶文[中学] = {4, 5, 6};
    RunClock last;
    last.開始時刻 = last.終了時刻 = QDateTime(c.last, QTime(23, 59));
    const auto rows = store.database().OpenRecordset(tableBDIC);
    ASSERT_TRUE(saveProgressRecord(*rows, buildProgressRecord(userId, before, last)));
    clock.time = QDateTime(c.now, QTime(0, 0));
    ASSERT_TRUE(load());
    EXPECT_EQ(backupDue, c.rolls);
    ProgressCounters expected = before;
    if (c.rolls) {
      expected.回数[高校] = {0, 5, 15};
      expected.回数文[中学] = {0, 1, 1};
      expected.時間[高校] = {40, 100, 120};  // and the seconds since the program's start
    }
    EXPECT_TRUE(counters == expected);
    EXPECT_TRUE(parseProgressRecord(storedRecord()).counters == expected);
    ASSERT_TRUE(load());
    EXPECT_TRUE(counters == expected) << "a second login of the month";
    EXPECT_FALSE(backupDue);
  }
}

TEST_F(ProgressStoreTest, BooksTheTimeWithoutTheRest) {
  times.開始時刻 = clock.time;
  times.休憩時間 = 100;
  clock.time = clock.time.addSecs(700);
  COURSE = Course::専門;
  EXPECT_EQ(bookTime({userId, COURSE, times}, counters, clock), QString());
  EXPECT_EQ(counters.時間[専門], (Three{600, 0, 0}));
  EXPECT_EQ(times.終了時刻, clock.time);

  clock.time = times.開始時刻.addSecs(-1);
  const QString told = bookTime({userId, COURSE, times}, counters, clock);
  EXPECT_EQ(counters.時間[専門], (Three{600, 0, 0})) << "the clock was put back";
  EXPECT_EQ(times.終了時刻, times.開始時刻);
  EXPECT_EQ(times.休憩時間, 0);
  EXPECT_TRUE(told.startsWith(u"DateDiff(\"s\", 開始時刻, 終了時刻 ) - 休憩時間 < 0"_s));
}

TEST(ProgressReportTest, NamesAndFormatsWhatItShows) {
  ProgressCounters counters;
  counters.記憶単熟[高校] = {1234567, 2, 3};
  counters.時間[専門] = {5400, 36, 4000000};
  counters.回数[中学] = {10, 20, 30};
  counters.回数[高校] = {1, 2, 3};
  counters.回数文[専門] = {7, 8, 9};
  counters.回数単熟[中学] = {1000, 0, 0};
  const ProgressReport report(counters);

  EXPECT_EQ(report.charts(高校)[0].inWords(), u"完全 1,234,567、うろ 2、全然 3"_s);
  const BarChart time = report.charts(専門)[2];
  EXPECT_EQ(time.values, (std::vector<double>{1.5, 0.01})) << "hours; 先月まで has no bar";
  EXPECT_EQ(time.inWords(), u"今月 1.50 時間、先月 0.01 時間"_s);
  EXPECT_EQ(report.charts(専門)[5].name, u"MSChart18"_s);

  const std::vector<NumberTable> tables = report.tables();
  EXPECT_EQ(tables[0].rows[3], u"文・中学DB"_s);
  EXPECT_EQ(tables[0].cells[1][0], u"1,234,567"_s);
  EXPECT_EQ(tables[1].cells[2], (QStringList{u"1.50 時間"_s, u"0.01 時間"_s, u"1,111.11 時間"_s}));
  EXPECT_EQ(tables[2].cells[3], (QStringList{u"11"_s, u"22"_s, u"33"_s}));
  EXPECT_EQ(tables[3].cells[5], (QStringList{u"7"_s, u"8"_s, u"9"_s}));
  EXPECT_EQ(tables[3].cells[6], (QStringList{u"1,007"_s, u"8"_s, u"9"_s}));
}

}  // namespace
}  // namespace tavoli
