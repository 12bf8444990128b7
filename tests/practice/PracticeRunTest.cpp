#include <gtest/gtest.h>

#include "home/WorkingCopy.h"
#include "practice/PracticeRun.h"
#include "system/Files.h"
#include "tests/support/FakePaper.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::sentenceRecord;

class PracticeRunTest : public testing::Test {
 protected:
  PracticeRunTest() {
    conditions.selMethod = SelMethod::sentencesInOrder;
    conditions.startMode = StartMode::first;
    course.COURSE = Course::中学;
    store.addSentence(u"000010"_s,
                      sentenceRecord(u"[彼]は学生％(   ) a (   )"_s, {u"He is"_s, u"student."_s}));
    store.addSentence(u"000020"_s, sentenceRecord(u"二問目"_s, {u"yes"_s}), MemoryState::うろ覚え);
    store.addWord(tableJTDIC, u"apple"_s, test::wordRecord({u"意味"_s}));
    learner.dbFileWork = store.path();
    learner.condFileWork = store.folder() + u"/TavoCond000"_s;
  }

  bool begin() {
    store.close();
    run = std::make_unique<PracticeRun>(learner, course, conditions, times, figures,
                                        RunServices{files, clock, random, dialogs, speaker, paper});
    return run->openTables() && run->open(screen, review, progress, startKeyOf(conditions));
  }
  void open() { ASSERT_TRUE(begin()); }

  void finish() {
    run->loop().exitAtOnce();
    const std::optional<StoredRun> stored = close();
    ASSERT_TRUE(stored);
    figures = stored->progress;
    EXPECT_FALSE(close()) << "a run is stored once";
    run.reset();
    store.open();
  }

  /// Stores the run; a learner who is asked does not try again.
  std::optional<StoredRun> close() {
    return run->close([this](const QStringList&, const QString& question) {
      asked.append(question);
      return false;
    });
  }

  void enter(const char16_t* typed) { run->loop().enter(QString::fromUtf16(typed)); }

  test::TestStore store;
  LearnerFiles learner;
  CourseChoice course;
  PracticeConditions conditions;
  SystemFiles files;
  test::FakeClock clock;
  test::FakeRandom random;
  test::ScriptedDialogs dialogs;
  test::FakeProgress progress;
  test::RecordingSpeaker speaker;
  RunClock times;
  ProgressCounters figures;
  test::RecordingScreen screen;
  test::RecordingReview review;
  test::FakePaper paper;
  QStringList asked;
  std::unique_ptr<PracticeRun> run;
};

TEST_F(PracticeRunTest, AsksBlankAfterBlankAndKeepsWhatWasLearnt) {
  open();
  EXPECT_EQ(screen.question, u"彼は学生\n(   ) a (   )"_s);
  EXPECT_EQ(screen.panels.value(2), u"位置=1／2 000010"_s);
  for (const char16_t* typed : {u"she is", u" he  IS ", u"student."}) enter(typed);
  EXPECT_EQ(screen.fullAnswer, u"彼は学生\n(   ) a (   )\nHe is\nstudent."_s);
  enter(u"");
  EXPECT_EQ(screen.question, u"二問目"_s);
  finish();
  const QString key = u"000010"_s;
  EXPECT_EQ(store.stored(tableBDIC, key, field記憶), u"0"_s);
  EXPECT_EQ(store.stored(tableBDIC, key, field回数), u"01"_s);
  EXPECT_EQ(store.stored(tableBDIC, key, field問正コ),
            u"[彼]は学生％(   ) a (   )|000005He is00000000^001008student.00000000^|"_s);
  EXPECT_EQ(store.stored(tableBDIC, u"000020"_s, field回数), u"00"_s) << "shown, not finished";
  EXPECT_EQ(store.stored(tableBDIC, rowCourse, field記憶), u"0"_s);
  const PracticeConditions stored = decodeConditions(
      store.stored(tableJTDIC, rowConditions, field発同日コ).value_or(QString()), QString());
  EXPECT_EQ(stored.firstEnglish, u"000010･"_s);
  EXPECT_EQ(stored.lastEnglish, u"000020･"_s);
  EXPECT_TRUE(files.exists(learner.condFileWork));
}

TEST_F(PracticeRunTest, KeepsTheTimeUpSoundAndLooksWordsUp) {
  open();
  EXPECT_EQ(screen.timeUpSound, 2);
  ASSERT_EQ(run->dictionaries().size(), 2U);
  EXPECT_EQ(run->dictionaries()[0].heading, u"中学DB"_s);
  EXPECT_TRUE(run->dictionaries()[0].lookUp.find(u"app"_s)->text.startsWith(u"apple"));
  run->loop().chooseTimeUpSound(0);
  finish();
  EXPECT_EQ(store.stored(tableBDIC, rowAutoPlay, field問正コ), u"00100050020000"_s);
  open();
  EXPECT_EQ(screen.timeUpSound, 0);
}

TEST_F(PracticeRunTest, CountsOnFromTheMonth) {
  figures.回数文[中学][0] = 41;
  figures.回数単熟[高校][0] = 7;
  open();
  enter(u"he is");
  enter(u"student.");
  EXPECT_EQ(screen.counts.run.sentences, (std::array{1, 0, 0}));
  EXPECT_EQ(screen.counts.month.sentences, (std::array{42, 0, 0}));
  EXPECT_EQ(screen.counts.month.words, (std::array{0, 7, 0}));
  finish();
  open();
  EXPECT_EQ(screen.counts.month.sentences, (std::array{42, 0, 0})) << "the next run counts on";
}

TEST_F(PracticeRunTest, ReshufflingStartsOverWithWhatIsThere) {
  open();
  enter(u"he is");
  enter(u"student.");
  dialogs.answers = {false, true};
  run->loop().reshuffle();
  EXPECT_TRUE(run->loop().確認中()) << "refused";
  run->loop().reshuffle();
  EXPECT_EQ(random.reseeded, 2);
  EXPECT_EQ(screen.panels.value(8), u"順不同出題"_s);
  EXPECT_FALSE(screen.awaited);
  EXPECT_EQ(run->loop().POS(), 1);
  finish();
  EXPECT_EQ(store.stored(tableBDIC, u"000010"_s, field回数), u"01"_s)
      << "what was learnt moved along";
}

TEST_F(PracticeRunTest, NeedsTwoItems) {
  conditions.memorySelect = MemorySelect::うろ覚え;
  EXPECT_FALSE(begin());
  EXPECT_EQ(dialogs.shown.last(),
            u"条件に合う英語が２個以上ありません。再度、条件設定をして下さい。"_s);
  EXPECT_FALSE(close());
}

TEST_F(PracticeRunTest, ALockedDatabaseLosesNothing) {
  open();
  enter(u"he is");
  run->loop().exitAtOnce();
  {
    std::optional<Database> holder = openDatabase(store.path()).database;
    EXPECT_FALSE(holder->write([&] {
      EXPECT_FALSE(close());
      return false;
    }));
  }
  ASSERT_EQ(asked.size(), 1);
  EXPECT_TRUE(asked[0].startsWith(store.path()));
  run.reset();
  store.open();
  EXPECT_EQ(store.stored(tableBDIC, u"000010"_s, field記憶), u"0"_s);
}

}  // namespace
}  // namespace tavoli
