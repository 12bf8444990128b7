#include <gtest/gtest.h>

#include "app/ProgramEnd.h"
#include "conditions/ConditionsStore.h"
#include "home/WorkingCopy.h"
#include "practice/PracticeRun.h"
#include "system/Files.h"
#include "tests/support/FakePaper.h"
#include "tests/support/Fakes.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

using namespace Qt::StringLiterals;

class ProgramEndTest : public testing::Test {
 protected:
  ProgramEndTest() {
    module.course.COURSE = Course::中学;
    for (const QString& number : {u"000010"_s, u"000020"_s})
      store.addSentence(number, test::sentenceRecord(u"問題"_s, {u"yes"_s}));
    module.conditions.selMethod = SelMethod::sentencesInOrder;
    LearnerFiles& learner = module.learner;
    learner.userId = u"000"_s;
    learner.dbFileWork = store.path();
    learner.condFileWork = store.folder() + u"/TavoCond000"_s;
    learner.historyFileWork = store.folder() + u"/TavoHistory000"_s;
    learner.placedElsewhere = true;
    for (QString* placed :
         {&learner.dbFilePlaced, &learner.condFilePlaced, &learner.historyFilePlaced})
      *placed = store.folder() + u"/placed%1"_s.arg(placed - &learner.userId);
  }

  /// A run of which the first sentence is answered and requested for printing.
  RunOver run(void (PracticeLoop::*leave)()) {
    store.close();
    PracticeRun run(module.learner, module.course, module.conditions, module.clock, module.progress,
                    {files, clock, random, dialogs, speaker, paper});
    EXPECT_TRUE(run.openTables() && run.open(screen, review, load, startKeyFirst));
    run.loop().requestPrint();
    run.loop().enter(u"yes"_s);
    (run.loop().*leave)();
    dialogs.shown.clear();
    const RunOver over = ProgramEnd(module, copy, dialogs).endRun(run);
    store.open();
    return over;
  }

  test::TestStore store;
  Module1 module;
  SystemFiles files;
  test::FakeClock clock;
  test::FakeRandom random;
  test::ScriptedDialogs dialogs;
  test::FakeProgress load;
  test::RecordingSpeaker speaker;
  test::RecordingScreen screen;
  test::RecordingReview review;
  test::FakePaper paper;
  WorkingCopy copy{module.learner, files, clock, dialogs};
};

TEST_F(ProgramEndTest, StoresCarriesHomeAndKeepsTheWorkingTextsForAnotherLesson) {
  // A history that another program has begun in the code page 932.
  ASSERT_EQ(files.write(module.learner.historyFileWork, "\x97\xFB\x8F\x4B\n"), FileResult::Ok);
  for (const bool another : {true, false}) {
    const RunOver over =
        run(another ? &PracticeLoop::requestLessonChange : &PracticeLoop::requestExit);
    EXPECT_TRUE(over.stored);
    EXPECT_EQ(over.toConditions, another);
    EXPECT_EQ(dialogs.shown, QStringList());
    EXPECT_EQ(module.progress.回数文[中学][0], another ? 1 : 2) << "the next run counts on";
    EXPECT_EQ(module.conditions.lastEnglish, u"000010･"_s);
    for (const QString& text : {module.learner.condFileWork, module.learner.historyFileWork})
      EXPECT_EQ(files.exists(text), another) << qPrintable(text);
    EXPECT_TRUE(files.read(module.learner.historyFilePlaced)->startsWith("練習\n"));
    EXPECT_FALSE(paper.printed.pieces.empty());
  }
}

TEST_F(ProgramEndTest, ARunThatIsNotStoredChangesNothing) {
  auto holder = openDatabase(store.path()).database;
  dialogs.answers = {true, false};  // the end of the run, and trying again
  EXPECT_FALSE(holder->write([&] {
    const RunOver over = run(&PracticeLoop::requestExit);
    EXPECT_FALSE(over.stored);
    return false;
  }));
  EXPECT_TRUE(paper.printed.pieces.empty()) << "printed is what was stored";
  EXPECT_EQ(module.progress.回数文[中学][0], 0);
  EXPECT_FALSE(files.exists(module.learner.dbFilePlaced));
}

}  // namespace
}  // namespace tavoli
