#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "practice/ItemWriteBack.h"
#include "practice/PracticeSetLoader.h"
#include "practice/RunEnd.h"
#include "progress/ProgressRecord.h"
#include "progress/ProgressStore.h"
#include "progress/TableSurvey.h"
#include "system/Files.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

QString packedCodes(bool sentence, const QString& codes) {
  QString list;
  for (const QChar code : codes)
    list += sentence ? QStringLiteral("00") + code + QStringLiteral("001a00000000^")
                     : code + QStringLiteral("00意味^");
  return (sentence ? QStringLiteral("問|") : QStringLiteral("||")) + list + u'|';
}

TEST(ItemStateTest, SumsUpItsSubQuestions) {
  QStringList combinations = {QString()};
  for (qsizetype i = 0; i < combinations.size() && combinations[i].size() < 3; ++i)
    for (const QChar code : {u'0', u'1', u'2', u'7'}) combinations.append(combinations[i] + code);
  for (const QString& codes : std::as_const(combinations)) {
    for (const bool sentence : {true, false}) {
      const TableCode table = sentence ? TableCode::sentences : TableCode::first;
      const ItemState summed =
          itemState(ParseRecord(packedCodes(sentence, codes), QStringLiteral("k"), table),
                    QStringLiteral("k"));
      const bool any0 = codes.contains(u'0');
      const bool any1 = codes.contains(u'1');
      const bool any2 = codes.contains(u'2');
      MemoryState expected = MemoryState::うろ覚え;
      if (any2 && !any0 && !any1) expected = MemoryState::完全;
      if (any0 && (sentence || (!any1 && !any2))) expected = MemoryState::全然;
      EXPECT_EQ(summed.state, expected) << sentence << qPrintable(codes);
      const bool none = !any0 && !any1 && !any2;
      EXPECT_EQ(summed.complaints.size(), codes.count(u'7') + (!none      ? 0
                                                               : sentence ? 1
                                                                          : 2))
          << qPrintable(codes);
    }
  }
}

class RunEndTest : public testing::Test {
 protected:
  RunEndTest() {
    learner.userId = QStringLiteral("000");
    learner.dbFileWork = store.path();
    learner.condFileWork = store.folder() + QStringLiteral("/TavoCond000");
    learner.historyFileWork = store.folder() + QStringLiteral("/TavoHistory000");
    course.COURSE = Course::専門;
    course.specialTable = QStringLiteral("BusinessTOEIC");
    times.開始時刻 = clock.time;
  }

  /// Ends a run over everything that the table, or the sentences, hold, after `change` did its part
  /// on each item.
  std::optional<StoredRun> run(const QString& selMethod,
                               const std::function<void(PracticeItem&)>& change) {
    store.close();
    auto tables = LearningTables::open(store.path(), course).tables;
    conditions.selMethod = codeOf<SelMethod>(selMethod);
    conditions.memorySelect = MemorySelect::すべて;
    conditions.startMode = StartMode::first;
    conditions.maxLoadSent = conditions.maxLoadWords = 1000;
    const PracticeSet loaded =
        PracticeSetLoader(*tables, course, conditions, files, random, dialogs, load)
            .LoadPracticeSet(startKeyFirst);
    PracticeSet set;
    for (int i = 1; i <= loaded.itemCount(); ++i) {
      PracticeItem item = loaded.item(i);
      change(item);
      set.append(item);
    }
    clock.time = clock.time.addSecs(60);
    const auto stored =
        RunEnd(learner, files, clock)
            .saveRunEnd(std::move(tables), set, {1, course, conditions, settings, times, figures},
                        [](const QStringList&, const QString&) { return false; });
    store.open();
    return stored;
  }

  /// What a survey of all tables finds.
  ProgressCounters survey() {
    ProgressCounters found;
    const auto count = [&](const QString& table, Level level) {
      EXPECT_TRUE(surveyWordTable(store.database(), table, found.記憶単熟[level]));
    };
    count(tableJTDIC, 中学);
    count(tableSTDIC, 高校);
    count(QStringLiteral("BusinessTOEIC"), 専門);
    EXPECT_TRUE(surveySentences(store.database(), found.記憶文));
    return found;
  }

  test::TestStore store;
  LearnerFiles learner;
  CourseChoice course;
  PracticeConditions conditions;
  AutoPlaySettings settings;
  SystemFiles files;
  test::FakeClock clock;
  test::FakeRandom random;
  test::ScriptedDialogs dialogs;
  test::FakeProgress load;
  RunClock times;
  ProgressCounters figures;
};

TEST_F(RunEndTest, TheMemoryCountsStayWhatASurveyFinds) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(seed);
  std::mt19937 engine(seed);
  const auto chance = [&](int most) { return std::uniform_int_distribution(0, most)(engine); };
  const auto codes = [&] {
    QString text;
    for (int i = chance(2); i >= 0; --i) text += QChar(u'0' + chance(2));
    return text;
  };
  const auto stateOf = [&](bool sentence, const QString& record) {
    return itemState(
               ParseRecord(record, QString(), sentence ? TableCode::sentences : TableCode::first),
               QString())
        .state;
  };
  ASSERT_TRUE(store.database().write([&] {
    for (int i = 0; i < 40; ++i) {
      for (const QString& table : {tableJTDIC, tableSTDIC, course.specialTable}) {
        const QString record = packedCodes(false, codes());
        store.addWord(table, QStringLiteral("word %1").arg(i), record, stateOf(false, record));
      }
      const QString record = packedCodes(true, codes());
      const QString initial(u"0123456789A"[i % 11]);
      store.addSentence(initial + digits(i, 5), record, stateOf(true, record));
    }
    return true;
  }));
  const QString lesson = store.folder() + QStringLiteral("/lesson.tav");
  // A lesson that names items twice, and from three dictionaries.
  EXPECT_EQ(files.write(lesson, "word 1\nword 2\nword 1\nword 3\nword 3\n"), FileResult::Ok);
  conditions.lessonFolder = store.folder();
  conditions.lessonFile = QStringLiteral("lesson.tav");
  figures = survey();
  for (int round = 0; round < 30; ++round) {
    course.COURSE = codeAt<Course>(chance(2));
    const QString selMethod = QString(u"024"[chance(2)]);
    const auto stored = run(selMethod, [&](PracticeItem& item) {
      if (chance(1) == 0) return;
      item.itemDirty = true;
      item.itemRecord = packedCodes(item.isSentence(), codes());
      figures.countQuestion(course.COURSE, item.itemTable, item.itemEnglish);
    });
    ASSERT_TRUE(stored);
    const ProgressCounters found = survey();
    ASSERT_EQ(stored->progress.記憶単熟, found.記憶単熟)
        << qPrintable(courseName(course.COURSE) + selMethod);
    ASSERT_EQ(stored->progress.記憶文, found.記憶文);
    EXPECT_EQ(stored->progress.回数単熟, figures.回数単熟);
    const auto rows = store.database().OpenRecordset(tableBDIC);
    rows->Seek(SeekOp::Equal, rowProgress);
    EXPECT_TRUE(parseProgressRecord(rows->text(field問正コ)).counters == stored->progress);
    figures = stored->progress;
  }
}

TEST_F(RunEndTest, WritesALineOfHistory) {
  store.addSentence(QStringLiteral("900010"), packedCodes(true, QStringLiteral("2")),
                    MemoryState::全然);
  times.休憩時間 = 20;
  const auto stored = run(QStringLiteral("4"), [](PracticeItem& item) { item.itemDirty = true; });
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->progress.時間[専門][0], 40);
  EXPECT_EQ(stored->progress.記憶文[専門], (Three{1, 0, 0})) << "below 0 it begins anew";
  const QStringList lines = QString::fromUtf8(*files.read(learner.historyFileWork)).split(u'\n');
  ASSERT_EQ(lines.size(), 2);
  EXPECT_TRUE(lines[0].startsWith(
      QStringLiteral("000     2BusinessTOE2026/04/0109:002026/04/0109:0100020")));
  EXPECT_EQ(lines[0].mid(55, 336),
            store.stored(tableBDIC, rowProgress, field問正コ).value_or(QString()).mid(9));
  EXPECT_EQ(lines[0].mid(55 + 336), encodeConditions(stored->conditions).mid(9));
}

TEST_F(RunEndTest, WritesAWordsCountAndNoRecordThatCouldNotBeRead) {
  const QString whole = packedCodes(false, QStringLiteral("0"));
  for (const char16_t* word : {u"broken", u"whole"})
    store.addWord(course.specialTable, QString::fromUtf16(word), whole);
  {
    SQLite::Database raw(store.path().toStdString(), SQLite::OPEN_READWRITE);
    raw.exec(
        "UPDATE BusinessTOEIC SET 発同日コ=CAST(x'7C7C303030FF5E7C' AS TEXT) "
        "WHERE 英語='broken'");
  }
  const auto bytes = [&] {
    SQLite::Database raw(store.path().toStdString());
    return raw.execAndGet("SELECT hex(発同日コ) FROM BusinessTOEIC WHERE 英語='broken'")
        .getString();
  };
  ASSERT_TRUE(run(QStringLiteral("2"), [](PracticeItem& item) {
    item.itemDirty = true;
    item.itemTimes = 7;
  }));
  EXPECT_EQ(store.stored(course.specialTable, QStringLiteral("whole"), field回数),
            QStringLiteral("07"));
  EXPECT_EQ(bytes(), "7C7C303030FF5E7C");
}

TEST_F(RunEndTest, TellsAboutCodesOutOfRange) {
  store.addSentence(QStringLiteral("900010"), packedCodes(true, QStringLiteral("7")),
                    codeOf<MemoryState>(u'9'));
  store.addWord(course.specialTable, QStringLiteral("a"), packedCodes(false, QStringLiteral("7")));
  const auto sentence = run(QStringLiteral("4"), [](PracticeItem& item) { item.itemDirty = true; });
  ASSERT_TRUE(sentence);
  EXPECT_EQ(sentence->notices,
            (QStringList{QStringLiteral("Stop34 900010"), QStringLiteral("Stop36 900010"),
                         QStringLiteral("Stop37 900010")}));
  const auto word = run(QStringLiteral("2"), [&](PracticeItem& item) {
    item.itemDirty = true;
    item.itemEnglish = QStringLiteral("gone");
  });
  ASSERT_TRUE(word);
  EXPECT_EQ(
      word->notices,
      (QStringList{QStringLiteral("Stop38 gone"), QStringLiteral("Stop39 gone"),
                   QStringLiteral("Stop3A gone"), QStringLiteral("No Match rsTDIC :##gone##")}));
}

}  // namespace
}  // namespace tavoli
