#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include "app/Module1.h"
#include "home/WorkingCopy.h"
#include "system/Files.h"
#include "tests/support/FakeLoginScreen.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

class LoginTest : public testing::Test {
 protected:
  LoginTest() {
    module = startModule1(files, clock, folder.path());
    deliver(module.dbPathDefault);
  }

  void deliver(const QString& to, const QString& name = QStringLiteral("TavoDB000.mdb")) {
    test::TestStore store;
    store.addSentence(QStringLiteral("000010"), QStringLiteral("問||"));
    store.close();
    QDir().mkpath(to);
    QFile::copy(store.path(), to + u'/' + name);
  }

  void placeElsewhere() {
    placed = folder.filePath(QStringLiteral("server/TavoliPersonalData"));
    deliver(placed);
    module.dbPath = placed;
    QFile::remove(work());
  }

  QString work() const { return module.dbPathDefault + QStringLiteral("/TavoDB000.mdb"); }

  bool login(const QString& id, const QString& password = QString()) {
    WorkingCopy copy(module.learner, files, clock, dialogs);
    Login rules(module, copy, files, clock, dialogs);
    dialogs.shown.clear();
    dialogs.asked.clear();
    const bool in = rules.next(screen, id, password);
    if (in) copy.leave();
    return in;
  }

  Field storedPassword(const QString& path) {
    std::optional<Database> database = openDatabase(path).database;
    const auto rows = database->OpenRecordset(tableBDIC);
    rows->Seek(SeekOp::Equal, rowPassword);
    return rows->NoMatch() ? Field(QStringLiteral("no row")) : rows->value(field問正コ);
  }

  /// Changes the database as a run does.
  void work_on(const QString& path) {
    std::optional<Database> database = openDatabase(path).database;
    const auto rows = database->OpenRecordset(tableBDIC);
    rows->Seek(SeekOp::Equal, QStringLiteral("000010"));
    rows->Edit();
    rows->setValue(field回数, QStringLiteral("77"));
    ASSERT_TRUE(rows->Update());
  }

  QTemporaryDir folder;
  QString placed;
  SystemFiles files;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  test::FakeLoginScreen screen;
  Module1 module;
};

TEST_F(LoginTest, RefusesIdsThatAreNoLearner) {
  EXPECT_FALSE(login(QStringLiteral("123456789")));
  EXPECT_EQ(dialogs.shown,
            QStringList{QStringLiteral(
                "ユーザーＩＤ \"123456789\" は長すぎます。8文字以下にして下さい。")});
  EXPECT_FALSE(login(QStringLiteral(" 12345678 ")));
  EXPECT_EQ(dialogs.shown,
            QStringList{QStringLiteral("ユーザーIDを入れ直してください。\n%1/TavoDB12345678.mdb"
                                       " : not found")
                            .arg(module.dbPathDefault)});
  for (const char16_t* id : {u"../000", u"000.mdb", u"0.MDB", u"0backup"}) {
    EXPECT_FALSE(login(QString::fromUtf16(id)));
    EXPECT_EQ(dialogs.shown,
              QStringList{
                  QStringLiteral("ユーザーID \"%1\" は未登録です。").arg(QString::fromUtf16(id))});
  }
  EXPECT_EQ(QDir(module.dbPathDefault).entryList(QDir::Files),
            QStringList{QStringLiteral("TavoDB000.mdb")})
      << "nothing is left behind";
}

TEST_F(LoginTest, AnEmptyIdTurnsIntoTheStandardUser) {
  EXPECT_FALSE(login(QString()));
  EXPECT_EQ(screen.userId, QStringLiteral("000"));
  EXPECT_TRUE(dialogs.shown.isEmpty() && dialogs.asked.isEmpty());
  EXPECT_TRUE(login(screen.userId));
  EXPECT_EQ(dialogs.asked, QStringList{QStringLiteral("パスワードは「」です。")});
  EXPECT_EQ(module.course.COURSE, Course::高校);
  EXPECT_EQ(storedPassword(work()), std::nullopt);
  EXPECT_TRUE(login(QStringLiteral("000"), QStringLiteral("anything"))) << "no password was set";
  EXPECT_TRUE(files.exists(module.dbPath + QStringLiteral("/TavoDB000BackUp")));
}

TEST_F(LoginTest, SetsThePasswordOnceAndThenAsksForIt) {
  dialogs.answers = {false};
  EXPECT_FALSE(login(QStringLiteral("000"), QStringLiteral(" Ab ")));
  EXPECT_EQ(screen.focused, QStringLiteral("Text2"));
  EXPECT_EQ(storedPassword(work()), QStringLiteral("no row"));
  EXPECT_TRUE(login(QStringLiteral("000"), QStringLiteral(" Ab ")));
  for (const char16_t* wrong : {u"", u"Ab", u" ab "}) {
    EXPECT_FALSE(login(QStringLiteral("000"), QString::fromUtf16(wrong)));
    EXPECT_EQ(dialogs.shown, QStringList{QStringLiteral("パスワードを入れ直してください。")});
  }
  WorkingCopy copy(module.learner, files, clock, dialogs);
  Login rules(module, copy, files, clock, dialogs);
  EXPECT_FALSE(rules.next(screen, QStringLiteral("000"), QString()));
  EXPECT_FALSE(files.exists(work() + QStringLiteral(".lock"))) << "let go";
  EXPECT_TRUE(login(QStringLiteral("000"), QStringLiteral(" Ab ")));
}

TEST_F(LoginTest, FetchesThePlacedFilesAndCarriesANewPasswordBack) {
  placeElsewhere();
  EXPECT_EQ(files.write(placed + QStringLiteral("/TavoCond000"), "past\n"), FileResult::Ok);
  EXPECT_TRUE(login(QStringLiteral("000"), QStringLiteral("pw")));
  EXPECT_EQ(storedPassword(placed + QStringLiteral("/TavoDB000.mdb")), QStringLiteral("pw"));
  EXPECT_EQ(files.read(module.learner.condFileWork), "past\n");
  EXPECT_TRUE(files.exists(placed + QStringLiteral("/TavoDB000BackUp")));
  EXPECT_FALSE(login(QStringLiteral("001")));
  EXPECT_EQ(dialogs.shown, QStringList{QStringLiteral("ユーザーID \"001\" は未登録です。")});
  deliver(placed, QStringLiteral("TavoDB000"));
  EXPECT_TRUE(login(QStringLiteral("000"), QStringLiteral("other")));
  EXPECT_EQ(module.learner.dbFileWork, module.dbPathDefault + QStringLiteral("/TavoDB000"))
      << "the one without an extension is preferred";
}

TEST_F(LoginTest, LeavingWithoutARunLeavesNothingToKeep) {
  placeElsewhere();
  ASSERT_TRUE(login(QStringLiteral("000")));
  clock.time = clock.time.addMonths(1);
  ASSERT_TRUE(login(QStringLiteral("000"))) << "rolls the figures over";
  ASSERT_TRUE(login(QStringLiteral("000")));
  EXPECT_TRUE(dialogs.shown.isEmpty());
}

TEST_F(LoginTest, ACopyAsDeliveredGivesWayInSilence) {
  placeElsewhere();
  ASSERT_TRUE(login(QStringLiteral("000")));
  const auto used = files.read(work());
  QFile::remove(work());
  deliver(module.dbPathDefault);
  ASSERT_TRUE(login(QStringLiteral("000")));
  EXPECT_TRUE(dialogs.shown.isEmpty());
  EXPECT_EQ(files.read(work()), used);
}

TEST_F(LoginTest, OneProgramAtATimeWorksOnACopy) {
  WorkingCopy copy(module.learner, files, clock, dialogs);
  ASSERT_TRUE(
      Login(module, copy, files, clock, dialogs).next(screen, QStringLiteral("000"), QString()));
  const auto before = files.read(work());
  EXPECT_FALSE(login(QStringLiteral("000")));
  EXPECT_EQ(dialogs.shown, QStringList{work() + QStringLiteral(" が誤って使用中になっています。")});
  EXPECT_EQ(files.read(work()), before);
}

TEST_F(LoginTest, ALiveProgramsLockNeverGrowsStale) {
  const QString holder = QStringLiteral("%1\n%2\n%3\n")
                             .arg(QString::number(QCoreApplication::applicationPid()),
                                  QCoreApplication::applicationName(), QSysInfo::machineHostName());
  QFile lock(work() + QStringLiteral(".lock"));
  ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
  lock.write(holder.toUtf8());
  lock.flush();
  lock.setFileTime(QDateTime::currentDateTime().addDays(-3), QFileDevice::FileModificationTime);
  lock.close();
  EXPECT_FALSE(login(QStringLiteral("000")));
  EXPECT_EQ(dialogs.shown, QStringList{work() + QStringLiteral(" が誤って使用中になっています。")});
}

TEST_F(LoginTest, ClearsTheLockOfADeadProgram) {
  ASSERT_EQ(files.write(work() + QStringLiteral(".lock"),
                        "999999999\ntavoli\n" + QSysInfo::machineHostName().toUtf8() + "\n"),
            FileResult::Ok);
  EXPECT_TRUE(login(QStringLiteral("000")));
  EXPECT_EQ(dialogs.shown,
            QStringList{work() + QStringLiteral(" が誤って使用中になっています。消去しました。\n"
                                                "学習結果は消えていません。")});
}

TEST_F(LoginTest, TellsWhatIsWrongWithAFileAndLeavesItAlone) {
  const QByteArray sound = *files.read(work());
  QByteArray damaged = sound;
  damaged.replace(sound.size() / 2, 3000, QByteArray(3000, '\xAA'));
  const struct {
    const char* name;
    QByteArray content;
  } cases[] = {{"empty", {}},
               {"foreign", "Hello, I am a letter. "},
               {"truncated", sound.left(5000)},
               {"damaged", damaged}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(files.write(work(), c.content), FileResult::Ok);
    EXPECT_FALSE(login(QStringLiteral("000")));
    EXPECT_EQ(dialogs.shown,
              QStringList{QStringLiteral(
                              "ユーザーIDを入れ直してください。\n%1 : not found    Err.Number=3343")
                              .arg(work())});
    EXPECT_EQ(files.read(work()), c.content);
    EXPECT_EQ(screen.focused, QStringLiteral("Text1"));
  }
  QFile::remove(work());
  EXPECT_TRUE(createDatabase(work()));
  EXPECT_FALSE(login(QStringLiteral("000")));
  EXPECT_EQ(dialogs.shown, QStringList{QStringLiteral("Error '91'")}) << "a database without BDIC";
  EXPECT_TRUE(screen.trouble);
}

TEST_F(LoginTest, BacksUpOnceAndWhenItIsDue) {
  const QString backup = module.dbPath + QStringLiteral("/TavoDB000BackUp");
  ASSERT_TRUE(login(QStringLiteral("000")));
  const auto first = files.read(backup);
  work_on(work());
  ASSERT_TRUE(login(QStringLiteral("000")));
  EXPECT_EQ(files.read(backup), first);
  clock.time = clock.time.addMonths(1);
  ASSERT_TRUE(login(QStringLiteral("000")));
  EXPECT_EQ(files.read(backup), files.read(work()));
}

}  // namespace
}  // namespace tavoli
