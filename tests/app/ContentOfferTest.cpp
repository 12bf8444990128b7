#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "app/Module1.h"
#include "contentbuilder/ContentNotes.h"
#include "home/Placement.h"
#include "home/WorkingCopy.h"
#include "system/Files.h"
#include "tests/support/FakeLoginScreen.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

// New content at the login, from the typed password to the learner's figures.
namespace tavoli {
namespace {

class ContentOfferTest : public testing::Test {
 protected:
  ContentOfferTest() {
    module = startModule1(files, clock, folder.path());
    EXPECT_EQ(files.makeFolder(lessonFolder(module.applicationFolder)), FileResult::Ok);
    module.deliveredContent = folder.filePath(u"new.mdb"_s);
    makeContent(work(), 1, {u"may"_s});
    makeContent(module.deliveredContent, 2, {u"may"_s, u"must"_s});
  }

  /// Content with these words, and a lesson that holds them; one without a number has no notes.
  void makeContent(const QString& path, int number, const QStringList& words,
                   const QString& question = u"問題"_s) {
    test::TestStore store;
    for (const QString& word : words)
      store.addWord(tableJTDIC, word, test::wordRecord({u"意味"_s}));
    store.addSentence(u"000010"_s, test::sentenceRecord(question, {u"answer"_s}));
    const ContentNotes notes = {{numberFile, QString::number(number)},
                                {u"lessons/a.tav"_s, words.join(u'\n')}};
    if (number > 0) EXPECT_TRUE(storeNotes(notes, store.database()));
    store.close();
    EXPECT_EQ(files.copy(store.path(), path), FileResult::Ok);
  }

  QString work() const { return module.dbPathDefault + u"/TavoDB000.mdb"_s; }
  QString lesson() const { return lessonFolder(module.applicationFolder) + u"/a.tav"_s; }
  QStringList keptBeside() const {
    return QDir(module.dbPathDefault).entryList({u"TavoDB000.mdb-*"_s}, QDir::Files);
  }

  /// Where the learner's data lie is another folder from now on.
  void placeElsewhere() {
    module.dbPath = folder.filePath(u"server"_s);
    EXPECT_EQ(files.makeFolder(module.dbPath), FileResult::Ok);
    EXPECT_TRUE(QFile::rename(work(), placed()));
  }
  QString placed() const { return module.dbPath + u"/TavoDB000.mdb"_s; }

  /// Logs in, and tells whether the learner was asked.
  bool asksAtLogin(bool answer = true) {
    dialogs.shown.clear();
    dialogs.asked.clear();
    // The first login asks for the password too.
    const bool first = !pastLogin;
    dialogs.answers = first ? QList{true, answer} : QList{answer};
    pastLogin = true;
    WorkingCopy copy(module.learner, files, clock, dialogs);
    EXPECT_TRUE(Login(module, copy, files, clock, dialogs).next(screen, u"000"_s, QString()))
        << qPrintable(dialogs.shown.join(u'/'));
    EXPECT_FALSE(screen.busy);
    carriedAtOnce = numberIn(placed()) == numberIn(work());
    copy.leave();
    return dialogs.asked.contains(u"新しい教材があります。取り込みますか。"_s);
  }

  static int numberIn(const QString& path) {
    std::optional<Database> database = peekDatabase(path);
    return contentNumber(*database);
  }

  QTemporaryDir folder;
  SystemFiles files;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  test::FakeLoginScreen screen;
  Module1 module;
  bool pastLogin = false;
  bool carriedAtOnce = false;
};

TEST_F(ContentOfferTest, YesTakesItInBeforeTheFiguresAreRead) {
  EXPECT_EQ(files.write(lesson(), "may\r\n"), FileResult::Ok);
  EXPECT_TRUE(asksAtLogin());
  EXPECT_EQ(numberIn(work()), 2);
  EXPECT_EQ(module.progress.記憶単熟[中学], (Three{0, 0, 2}));
  EXPECT_EQ(files.read(lesson()), "may\nmust");
  ASSERT_EQ(keptBeside().size(), 1);
  EXPECT_EQ(numberIn(module.dbPathDefault + u'/' + keptBeside().first()), 1);
  EXPECT_TRUE(dialogs.shown.isEmpty());
  EXPECT_FALSE(asksAtLogin());
}

TEST_F(ContentOfferTest, NoIsRememberedUntilNewerContentComes) {
  EXPECT_TRUE(asksAtLogin(false));
  EXPECT_EQ(numberIn(work()), 1);
  EXPECT_EQ(keptBeside(), QStringList());
  EXPECT_FALSE(asksAtLogin());
  makeContent(module.deliveredContent, 3, {u"may"_s});
  EXPECT_TRUE(asksAtLogin());
  EXPECT_EQ(numberIn(work()), 3);
}

TEST_F(ContentOfferTest, AsksOnlyWhomItConcerns) {
  const struct {
    const char* name;
    std::function<void()> make;
    bool asked;
  } cases[] = {
      {"a new learner",
       [&] { EXPECT_EQ(files.copy(module.deliveredContent, work()), FileResult::Ok); }, false},
      {"content of one's own", [&] { makeContent(work(), 0, {u"may"_s}, u"自作"_s); }, false},
      {"delivered without a number", [&] { makeContent(work(), 0, {u"may"_s}); }, true},
      {"a program without content", [&] { module.deliveredContent.clear(); }, false},
      {"a run that is not stored yet",
       [&] {
         EXPECT_EQ(files.write(module.dbPathDefault + u"/TavoDB000.run.1"_s, "x"), FileResult::Ok);
       },
       false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    makeContent(work(), 1, {u"may"_s});
    pastLogin = false;
    c.make();
    EXPECT_EQ(asksAtLogin(), c.asked);
    EXPECT_TRUE(dialogs.shown.isEmpty());
    module.deliveredContent = folder.filePath(u"new.mdb"_s);
  }
}

TEST_F(ContentOfferTest, APlacedLearnerHasItOnEveryMachine) {
  placeElsewhere();
  EXPECT_TRUE(asksAtLogin());
  EXPECT_TRUE(carriedAtOnce);
  EXPECT_EQ(numberIn(placed()), 2);
  EXPECT_EQ(files.read(placed()), files.read(work()));

  module.dbPathDefault = folder.filePath(u"other"_s);
  EXPECT_EQ(files.makeFolder(module.dbPathDefault), FileResult::Ok);
  EXPECT_FALSE(asksAtLogin());
  EXPECT_TRUE(dialogs.shown.isEmpty());
}

TEST_F(ContentOfferTest, WhatDoesNotGetHomeIsTold) {
  placeElsewhere();
  dialogs.whileOpen = [this] {
    if (dialogs.asked.size() < 2) return;
    EXPECT_TRUE(QFile::remove(placed()));
    EXPECT_TRUE(QFile::link(work(), placed())) << "links are not written to";
  };
  EXPECT_TRUE(asksAtLogin());
  EXPECT_EQ(numberIn(work()), 2);
  EXPECT_TRUE(dialogs.shown.join(u'/').contains(u"に新しい教材を保存できませんでした。"_s));
}

TEST_F(ContentOfferTest, AFailureLeavesEverythingAsItWas) {
  EXPECT_EQ(files.remove(module.deliveredContent), FileResult::Ok);
  EXPECT_FALSE(asksAtLogin());
  makeContent(module.deliveredContent, 2, {u"may"_s, u"must"_s});
  SQLite::Database(work().toStdString(), SQLite::OPEN_READWRITE)
      .exec("CREATE TRIGGER full BEFORE INSERT ON JTDIC BEGIN SELECT RAISE(ABORT,''); END");
  const auto before = files.read(work());
  EXPECT_TRUE(asksAtLogin());
  EXPECT_EQ(dialogs.shown,
            QStringList{u"新しい教材を取り込めませんでした。学習は今の教材で続けられます。\n"
                        "%1：取り込めませんでした。何も変更していません。ディスクの空きと権限を"
                        "確かめてください。"_s.arg(work())});
  EXPECT_EQ(files.read(work()), before);
  EXPECT_EQ(keptBeside(), QStringList());
  EXPECT_TRUE(asksAtLogin()) << "it may go well another time";
}

TEST_F(ContentOfferTest, WhatCouldNotBeTakenOverIsNamed) {
  EXPECT_EQ(files.write(folder.filePath(u"a.tav"_s), "may\n"), FileResult::Ok);
  ASSERT_TRUE(QFile::link(folder.filePath(u"a.tav"_s), lesson()));
  EXPECT_TRUE(asksAtLogin());
  EXPECT_EQ(
      dialogs.shown,
      QStringList{
          u"新しい教材を取り込みましたが、壊れているか書き込めない1件（%1）は前のままです。"_s.arg(
              lesson())});
  EXPECT_EQ(numberIn(work()), 2);
}

}  // namespace
}  // namespace tavoli
