// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>
#include <map>

#include "app/Login.h"
#include "app/Module1.h"
#include "home/WorkingCopy.h"
#include "practice/ItemWriteBack.h"
#include "practice/PracticeSetLoader.h"
#include "practice/RunEnd.h"
#include "progress/TableSurvey.h"
#include "progress/screens/TAVOstate.h"
#include "system/Files.h"
#include "system/screens/PagedPaper.h"
#include "tests/support/Fakes.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

constexpr int itemCount = 24990;
constexpr int rowCount = 50000;

QString wordOf(int i) {
  return QStringLiteral("word ") + digits(i, 5);
}

const QString record = test::wordRecord(
    {QStringLiteral("一つ目の意味"), QStringLiteral("二つ目の意味")}, {QStringLiteral("synonym")});

/// A learner's file with a dictionary of so many words, made once.
test::TestStore& filledStore(int words) {
  static std::map<int, test::TestStore> stores;
  test::TestStore& store = stores[words];
  if (store.stored(tableSTDIC, wordOf(0), field英語)) return store;
  const bool filled = store.database().write([&] {
    const auto rows = store.database().OpenRecordset(tableSTDIC);
    for (int i = 0; i < words; ++i) {
      rows->AddNew();
      rows->setValue(field英語, wordOf(i));
      rows->setValue(fieldレベル, QStringLiteral("00"));
      rows->setValue(field記憶, QStringLiteral("0"));
      rows->setValue(field回数, QStringLiteral("00"));
      rows->setValue(field発同日コ, record);
      if (!rows->Update()) return false;
    }
    return true;
  });
  if (!filled) qFatal("no rows");
  return store;
}

/// A run over 25,000 items, all of them changed, with everything that its end writes.
void closeRun(benchmark::State& state) {
  test::TestStore& store = filledStore(itemCount);
  SystemFiles files;
  test::FakeRandom random;
  test::ScriptedDialogs dialogs;
  test::FakeProgress load;
  test::FakeClock clock;
  const CourseChoice course;
  PracticeConditions conditions;
  conditions.maxLoadWords = itemCount;
  conditions.memorySelect = MemorySelect::すべて;
  AutoPlaySettings settings;
  RunClock times;
  times.開始時刻 = clock.time;
  LearnerFiles learner;
  learner.dbFileWork = store.path();
  learner.condFileWork = store.folder() + QStringLiteral("/cond");
  learner.historyFileWork = store.folder() + QStringLiteral("/history");
  for (auto _ : state) {
    state.PauseTiming();
    auto tables = LearningTables::open(store.path(), course).tables;
    PracticeSet set = PracticeSetLoader(*tables, course, conditions, files, random, dialogs, load)
                          .LoadPracticeSet(startKeyFirst);
    for (int i = 1; i <= set.itemCount(); ++i) {
      set.markShown(i);
      set.countItem(i);
    }
    RunEnd end(learner, files, clock);
    state.ResumeTiming();
    const auto stored =
        end.saveRunEnd(std::move(tables), set, {1, course, conditions, settings, times, {}},
                       [](const QStringList&, const QString&) { return false; });
    if (!stored) state.SkipWithError("not stored");
  }
}
BENCHMARK(closeRun)->Unit(benchmark::kMillisecond);

/// The same rows by a prepared update, found by their keys.
void closeRunBare(benchmark::State& state) {
  test::TestStore& store = filledStore(itemCount);
  const std::string path = store.path().toStdString();
  const std::string text = record.toStdString();
  for (auto _ : state) {
    SQLite::Database database(path, SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
    database.exec("PRAGMA synchronous=FULL");
    SQLite::Transaction transaction(database);
    SQLite::Statement update(database,
                             QStringLiteral("UPDATE STDIC SET レベル=?,記憶=?,回数=?,発同日コ=? "
                                            "WHERE 順=%1 AND 英語=?5")
                                 .arg(schema::keyOrder(QStringLiteral("?5")))
                                 .toStdString());
    for (int i = 0; i < itemCount; ++i) {
      update.bind(1, "00");
      update.bind(2, "0");
      update.bind(3, "01");
      update.bind(4, text);
      update.bind(5, wordOf(i).toStdString());
      update.exec();
      update.reset();
    }
    transaction.commit();
  }
}
BENCHMARK(closeRunBare)->Name("closeRun/bare")->Unit(benchmark::kMillisecond);

void survey(benchmark::State& state) {
  test::TestStore& store = filledStore(rowCount);
  Three memory{};
  bool counted = false;
  for (auto _ : state) counted = surveyWordTable(store.database(), tableSTDIC, memory);
  if (!counted || memory[2] != rowCount) state.SkipWithError("counted wrongly");
}
BENCHMARK(survey)->Unit(benchmark::kMillisecond);

/// A scan of the same rows in their order, the key and the state of each taken as text.
void surveyBare(benchmark::State& state) {
  test::TestStore& store = filledStore(rowCount);
  SQLite::Database database(store.path().toStdString(),
                            SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX);
  for (auto _ : state) {
    SQLite::Statement rows(database, "SELECT 英語,記憶 FROM STDIC ORDER BY 順,英語,rowid");
    std::array<int, 3> memory{};
    while (rows.executeStep()) {
      const QString key = QString::fromUtf8(rows.getColumn(0).getText());
      const QString code = QString::fromUtf8(rows.getColumn(1).getText());
      if (key.startsWith(QStringLiteral("zzzz"))) break;
      ++memory[static_cast<size_t>(u'2' - code[0].unicode())];
    }
    benchmark::DoNotOptimize(memory);
  }
}
BENCHMARK(surveyBare)->Name("survey/bare")->Unit(benchmark::kMillisecond);

/// From the press of "次へ" at the login to the drawn report, with a file of 50,000 rows.
void loginToReport(benchmark::State& state) {
  test::TestStore& store = filledStore(rowCount);
  QTemporaryDir folder;
  SystemFiles files;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  PagedPaper paper;
  Module1 module = startModule1(files, clock, folder.path());
  if (files.copy(store.path(), module.dbPathDefault + QStringLiteral("/TavoDB000.mdb")) !=
      FileResult::Ok)
    state.SkipWithError("not copied");
  struct Screen final : LoginScreen {
    void setUserId(const QString&) override {}
    void focusUserId() override {}
    void focusPassword() override {}
    void setBusy(bool) override {}
    void showEngineTrouble() override {}
  } screen;
  for (auto _ : state) {
    WorkingCopy workingCopy(module.learner, files, clock, dialogs);
    Login login(module, workingCopy, files, clock, dialogs);
    if (!login.next(screen, QStringLiteral("000"), QString())) state.SkipWithError("not logged in");
    TAVOstate report({module.learner.userId, module.learner.dbFileWork, module.course.COURSE,
                      module.course.specialTable, module.progress, clock, dialogs, paper});
    report.resize(1024, 768);
    report.show();
    QApplication::processEvents();
  }
}
BENCHMARK(loginToReport)->Unit(benchmark::kMillisecond);

/// The same pages of the file read once by SQLite's own check.
void loginToReportBare(benchmark::State& state) {
  test::TestStore& store = filledStore(rowCount);
  SQLite::Database database(store.path().toStdString(),
                            SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX);
  for (auto _ : state) {
    SQLite::Statement check(database, "PRAGMA quick_check(1)");
    while (check.executeStep()) benchmark::DoNotOptimize(check.getColumn(0).getText());
  }
}
BENCHMARK(loginToReportBare)->Name("loginToReport/bare")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavoli
