#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <random>

#include "data/LearnerFiles.h"
#include "data/Machine.h"
#include "home/WorkingCopy.h"
#include "system/Files.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

/// One learner on two machines.
class WorkingCopyTest : public testing::Test {
 protected:
  struct Machine {
    LearnerFiles learner;
    std::unique_ptr<WorkingCopy> copy;
  };

  WorkingCopyTest() {
    QDir().mkpath(placed);
    test::TestStore store;
    store.addSentence(rowPassword, QString());
    store.close();
    EXPECT_EQ(files.copy(store.path(), placed + QStringLiteral("/TavoDB000.mdb")), FileResult::Ok);
    for (Machine& machine : machines) {
      const QString folder =
          root.filePath(QStringLiteral("machine%1").arg(&machine - machines.data()));
      QDir().mkpath(folder);
      machine.learner = learnerFiles(QStringLiteral("000"), placed, folder);
      machine.copy = std::make_unique<WorkingCopy>(machine.learner, files, clock, dialogs);
    }
  }

  bool login(Machine& machine) {
    dialogs.shown.clear();
    dialogs.asked.clear();
    clock.time = clock.time.addSecs(1);
    if (!machine.copy->fetch()) return false;
    machine.copy->fetchTexts();
    return true;
  }

  /// What a run stores: a row of its own in the database, a line in each text.
  void run(const Machine& machine) {
    const QString key = digits(++runs, 6);
    std::optional<Database> database = openDatabase(machine.learner.dbFileWork).database;
    const auto rows = database->OpenRecordset(tableBDIC);
    EXPECT_TRUE(rows->EditOrAddNew(key));
    ASSERT_TRUE(rows->Update());
    for (const QString& text : {machine.learner.historyFileWork, machine.learner.condFileWork})
      EXPECT_EQ(files.append(text, key.toUtf8() + '\n'), FileResult::Ok);
  }

  void takePlacedFolderAway(bool away) const {
    const QString aside = placed + QStringLiteral("-away");
    QDir().rename(away ? placed : aside, away ? aside : placed);
  }

  /// The runs that are in a database.
  static QStringList runsIn(const QString& path) {
    QStringList keys;
    std::optional<Database> database = peekDatabase(path);
    const auto rows = database ? database->OpenRecordset(tableBDIC) : nullptr;
    for (; rows && rows->hasRow() && !isReservedKey(rows->key()); rows->MoveNext())
      keys.append(rows->key());
    return keys;
  }
  QStringList linesIn(const QString& path) const {
    return QString::fromUtf8(files.read(path).value_or(QByteArray()))
        .split(u'\n', Qt::SkipEmptyParts);
  }
  QStringList keptIn(const QString& folder) const {
    return QDir(folder).entryList({QStringLiteral("TavoDB000.mdb-2*")}, QDir::Files);
  }

  QTemporaryDir root;
  QString placed = root.filePath(QStringLiteral("placed"));
  SystemFiles files;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  std::array<Machine, 2> machines;
  Machine& here = machines[0];
  Machine& there = machines[1];
  int runs = 0;
};

TEST_F(WorkingCopyTest, KeepsHereWhatDoesNotGetHome) {
  ASSERT_TRUE(login(here));
  const struct {
    const char* name;
    QString refused;
    bool databaseHome, historyHome, conditionsHome;
  } cases[] = {
      {"all well", {}, true, true, true},
      {"no database", here.learner.dbFilePlaced, false, true, true},
      {"no history", here.learner.historyFilePlaced, true, false, true},
      {"no conditions", here.learner.condFilePlaced, true, true, false},
  };
  const LearnerFiles& l = here.learner;
  const QString aside = root.filePath(QStringLiteral("aside"));
  for (const auto& c : cases) {
    for (const WorkingCopy::Texts texts : {WorkingCopy::Texts::Stay, WorkingCopy::Texts::Go}) {
      const bool stay = texts == WorkingCopy::Texts::Stay;
      SCOPED_TRACE(std::string(c.name) + (stay ? ", texts stay" : ""));
      ASSERT_TRUE(login(here));
      run(here);
      // No file can take the place of a folder.
      if (!c.refused.isEmpty()) {
        ASSERT_EQ(files.rename(c.refused, aside), FileResult::Ok);
        QDir().mkdir(c.refused);
      }
      here.copy->carryHome(texts);
      EXPECT_EQ(runsIn(l.dbFilePlaced).size() == runs, c.databaseHome);
      EXPECT_EQ(linesIn(l.historyFilePlaced).size() == runs, c.historyHome);
      EXPECT_EQ(linesIn(l.condFilePlaced).size() == runs, c.conditionsHome);
      EXPECT_EQ(files.exists(l.historyFileWork), stay || !c.historyHome);
      EXPECT_EQ(files.exists(l.condFileWork), stay || !c.conditionsHome);
      const QString told =
          QStringLiteral("練習結果を配置場所に戻せなかったので、この機械の %1 に残してあります。")
              .arg(QFileInfo(l.dbFileWork).path());
      EXPECT_EQ(dialogs.shown, c.refused.isEmpty() ? QStringList() : QStringList{told});
      if (!c.refused.isEmpty()) {
        QDir().rmdir(c.refused);
        EXPECT_EQ(files.rename(aside, c.refused), FileResult::Ok);
      }
      here.copy->leave();
      EXPECT_EQ(runsIn(l.dbFilePlaced).size(), runs) << "tried once more";
    }
  }
}

TEST_F(WorkingCopyTest, AFailedRunIsStillThereAfterLeaving) {
  ASSERT_TRUE(login(here));
  run(here);
  here.copy->carryHome(WorkingCopy::Texts::Go);
  for (const bool diverged : {false, true}) {
    run(here);
    takePlacedFolderAway(true);
    here.copy->carryHome(WorkingCopy::Texts::Stay);
    here.copy->leave();
    takePlacedFolderAway(false);
    if (diverged) {
      ASSERT_TRUE(login(there));
      run(there);
      there.copy->carryHome(WorkingCopy::Texts::Go);
    }
    ASSERT_TRUE(login(here));
    const QString kept =
        here.learner.dbFileWork + clock.time.toString(QStringLiteral("-yyyyMMdd-HHmmss"));
    QString told =
        QStringLiteral("配置場所に戻されていない学習結果があったので %1 に保存しました。")
            .arg(kept);
    if (diverged)
      told += QStringLiteral("\n配置場所のデータにも別の変更があります。両方とも残してあります。");
    EXPECT_EQ(dialogs.shown, QStringList{told});
    EXPECT_TRUE(runsIn(kept).contains(digits(diverged ? runs - 1 : runs, 6)));
    EXPECT_EQ(files.read(here.learner.dbFileWork), files.read(here.learner.dbFilePlaced));
    EXPECT_EQ(linesIn(here.learner.historyFileWork).size(), runs) << "every line of both";
  }
  ASSERT_TRUE(login(here));
  EXPECT_EQ(dialogs.shown, QStringList()) << "told once";
}

TEST_F(WorkingCopyTest, KeepsWhatAnotherMachineCarriedHomeMeanwhile) {
  for (Machine& machine : machines) ASSERT_TRUE(login(machine));
  run(there);
  there.copy->carryHome(WorkingCopy::Texts::Go);
  run(here);
  here.copy->leave();
  EXPECT_TRUE(runsIn(here.learner.dbFilePlaced).contains(digits(runs - 1, 6)));
  EXPECT_EQ(keptIn(placed), QStringList());
  here.copy->carryHome(WorkingCopy::Texts::Go);
  ASSERT_EQ(keptIn(placed).size(), 1);
  const QString kept = placed + u'/' + keptIn(placed).first();
  EXPECT_TRUE(runsIn(kept).contains(digits(runs - 1, 6)));
  EXPECT_EQ(dialogs.shown,
            QStringList{QStringLiteral("配置場所の %1 は別の機械で変更されていたので "
                                       "%2 に保存しました。")
                            .arg(here.learner.dbFilePlaced, kept)});
  EXPECT_EQ(linesIn(here.learner.historyFilePlaced).size(), runs);
}

TEST_F(WorkingCopyTest, AJournalStaysBesideItsDatabase) {
  const QString& work = here.learner.dbFileWork;
  const QString journal = QStringLiteral("-journal");
  // No database, and so none that could take anything back.
  EXPECT_EQ(files.write(work, {}), FileResult::Ok);
  EXPECT_EQ(files.write(work + journal, "of this one"), FileResult::Ok);
  const QString taken = work + clock.time.addSecs(1).toString(QStringLiteral("-yyyyMMdd-HHmmss"));
  EXPECT_EQ(files.write(taken, "kept in the same second"), FileResult::Ok);
  ASSERT_TRUE(login(here));
  EXPECT_EQ(files.read(taken), "kept in the same second");
  const QString kept = taken + QStringLiteral("-2");
  EXPECT_EQ(files.read(kept), "");
  EXPECT_EQ(files.read(kept + journal), "of this one");
  EXPECT_FALSE(files.exists(work + journal));
  EXPECT_EQ(files.remove(work), FileResult::Ok);
  EXPECT_EQ(files.write(work + journal, "of a file that is gone"), FileResult::Ok);
  ASSERT_TRUE(login(here));
  EXPECT_FALSE(files.exists(work + journal)) << "it would spoil the fetched file";
}

TEST_F(WorkingCopyTest, NothingIsLostBetweenTwoMachines) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(seed);
  std::mt19937 engine(seed);
  const auto chance = [&](int most) { return std::uniform_int_distribution(0, most)(engine); };
  for (int round = 0; round < 60; ++round) {
    Machine& machine = machines[static_cast<size_t>(chance(1))];
    // The other machine may be in mid-run.
    if (chance(2) > 0) ASSERT_TRUE(login(machine));
    if (!files.exists(machine.learner.dbFileWork)) continue;
    if (chance(3) > 0) run(machine);
    const bool away = chance(3) == 0;
    if (away) takePlacedFolderAway(true);
    clock.time = clock.time.addSecs(chance(9) - 5);
    if (chance(3) > 0)
      machine.copy->carryHome(chance(1) == 0 ? WorkingCopy::Texts::Stay : WorkingCopy::Texts::Go);
    if (chance(1) == 0) machine.copy->leave();
    if (away) takePlacedFolderAway(false);
  }
  QStringList found;
  QStringList lines;
  for (const QString& folder : QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QDir place(root.filePath(folder));
    for (const QString& file : place.entryList({QStringLiteral("TavoDB000*")}, QDir::Files))
      found += runsIn(place.filePath(file));
    lines += linesIn(place.filePath(QStringLiteral("TavoHistory000")));
  }
  for (int i = 1; i <= runs; ++i) {
    EXPECT_TRUE(found.contains(digits(i, 6))) << i;
    EXPECT_TRUE(lines.contains(digits(i, 6))) << i;
  }
}

TEST_F(WorkingCopyTest, UsesNoLink) {
  ASSERT_TRUE(login(here));
  run(here);
  const QString somebodys = root.filePath(QStringLiteral("somebody's"));
  EXPECT_EQ(files.write(somebodys, "private"), FileResult::Ok);
  for (const QString& path : {here.learner.historyFilePlaced, here.learner.dbFilePlaced}) {
    QFile::remove(path);
    QFile::link(somebodys, path);
    dialogs.shown.clear();
    here.copy->carryHome(WorkingCopy::Texts::Go);
    EXPECT_EQ(dialogs.shown.value(0),
              path + QStringLiteral(" はリンクなので使いません。本物のファイルに替えてください。"));
    EXPECT_EQ(files.read(somebodys), "private");
    EXPECT_TRUE(files.exists(here.learner.historyFileWork));
  }
  EXPECT_FALSE(login(here));
  EXPECT_EQ(runsIn(here.learner.dbFileWork).size(), 1);
}

TEST_F(WorkingCopyTest, TellsWhoHoldsALockAndOffersAnOldOne) {
  const QString lock = here.learner.dbFileWork + QStringLiteral(".lock");
  const QByteArray elsewhere = "77\ntavoli\nlab-12\n";
  const struct {
    const char* name;
    QByteArray lock;
    int hours;
    bool offered;
    const char16_t* told;
  } cases[] = {
      {"young", elsewhere, 23, false, u"パソコン lab-12 の tavoli（プロセス番号 77）が "},
      {"old", elsewhere, 25, true, u"パソコン lab-12 の tavoli（プロセス番号 77）が "},
      {"empty", {}, 0, true, u"どのプログラムのロックか分かりません"},
  };
  for (const auto& c : cases) {
    for (const bool takesIt : {false, true}) {
      SCOPED_TRACE(c.name);
      EXPECT_EQ(files.write(lock, c.lock), FileResult::Ok);
      const QDateTime since = files.modified(lock);
      clock.time = since.addSecs(c.hours * 3600LL);
      dialogs.answers = {takesIt};
      EXPECT_EQ(login(here), c.offered && takesIt);
      const QString told = (c.offered ? dialogs.asked : dialogs.shown).value(0);
      EXPECT_TRUE(told.startsWith(here.learner.dbFileWork +
                                  QStringLiteral(" が誤って使用中になっています。\n") +
                                  QString::fromUtf16(c.told)));
      EXPECT_TRUE(told.contains(since.toString(QStringLiteral("yyyy/MM/dd HH:mm"))));
      EXPECT_TRUE(told.contains(lock));
      EXPECT_EQ(files.read(lock) == c.lock, !c.offered || !takesIt);
      here.copy->letGo();
    }
  }
}

}  // namespace
}  // namespace tavoli
