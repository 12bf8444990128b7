// SPDX-License-Identifier: GPL-3.0-or-later

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include "data/CurrentRecord.h"
#include "practice/PracticeSetLoader.h"
#include "system/Files.h"
#include "tests/support/Fakes.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

constexpr int rowCount = 25000;

/// A dictionary of 25,000 words, made once.
test::TestStore& bigStore() {
  static test::TestStore store;
  static const bool filled = store.database().write([] {
    for (int i = 0; i < rowCount; ++i)
      store.addWord(
          tableSTDIC, QStringLiteral("word ") + digits(i * 7919 % rowCount, 5),
          test::wordRecord({QStringLiteral("一つ目の意味"), QStringLiteral("二つ目の意味")},
                           {QStringLiteral("synonym")}));
    return true;
  });
  benchmark::DoNotOptimize(filled);
  return store;
}

void walkBare(benchmark::State& state) {
  SQLite::Database database(bigStore().path().toStdString());
  for (auto _ : state) {
    SQLite::Statement rows(database, "SELECT rowid,* FROM STDIC ORDER BY 順,英語,rowid");
    qsizetype length = 0;
    while (rows.executeStep())
      for (int i = 1; i <= 6; ++i) length += QString::fromUtf8(rows.getColumn(i).getText()).size();
    benchmark::DoNotOptimize(length);
  }
}
BENCHMARK(walkBare)->Name("walkTable/bare")->Unit(benchmark::kMillisecond);

void walkCursor(benchmark::State& state) {
  auto rows = bigStore().database().OpenRecordset(tableSTDIC);
  for (auto _ : state) {
    qsizetype length = 0;
    for (rows->MoveFirst(); rows->hasRow(); rows->MoveNext()) length += rows->key().size();
    benchmark::DoNotOptimize(length);
  }
}
BENCHMARK(walkCursor)->Name("walkTable")->Unit(benchmark::kMillisecond);

void loadSet(benchmark::State& state) {
  bigStore();
  const CourseChoice course;
  const auto tables = LearningTables::open(bigStore().path(), course).tables;
  PracticeConditions conditions;
  conditions.maxLoadWords = 24990;
  const SystemFiles files;
  test::FakeRandom random;
  test::ScriptedDialogs dialogs;
  test::FakeProgress progress;
  for (auto _ : state) {
    PracticeSetLoader loader(*tables, course, conditions, files, random, dialogs, progress);
    benchmark::DoNotOptimize(loader.LoadPracticeSet(startKeyFirst).itemCount());
  }
}
BENCHMARK(loadSet)->Name("loadSet")->Unit(benchmark::kMillisecond);
BENCHMARK(walkBare)->Name("loadSet/bare")->Unit(benchmark::kMillisecond);

void seekBare(benchmark::State& state) {
  SQLite::Database database(bigStore().path().toStdString());
  SQLite::Statement row(database, "SELECT rowid,* FROM STDIC WHERE rowid=?");
  int i = 0;
  for (auto _ : state) {
    row.reset();
    row.bind(1, 2 + i++ * 31 % rowCount);
    row.executeStep();
    benchmark::DoNotOptimize(QString::fromUtf8(row.getColumn(5).getText()));
  }
}
BENCHMARK(seekBare)->Name("seekKey/bare");

void seekCursor(benchmark::State& state) {
  auto rows = bigStore().database().OpenRecordset(tableSTDIC);
  int i = 0;
  for (auto _ : state) {
    rows->Seek(SeekOp::Equal, QStringLiteral("word ") + digits(i++ * 31 % rowCount, 5));
    benchmark::DoNotOptimize(rows->text(field発同日コ));
  }
}
BENCHMARK(seekCursor)->Name("seekKey");

const QString record = test::sentenceRecord(
    QStringLiteral("次の日本文に合うように空所を補いなさい。％彼は[学生]です。％(   ) is a (   )."),
    {QStringLiteral("He is a student of this school."), QStringLiteral("student")});

void rewriteBare(benchmark::State& state) {
  for (auto _ : state) {
    // Looking at every character and writing it once is the least that any parser does.
    QString copy;
    copy.reserve(record.size());
    for (const QChar c : record) copy += c;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(rewriteBare)->Name("parseAndPack/bare");

void rewrite(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(packRecord(ParseRecord(record, QString(), TableCode::sentences)));
}
BENCHMARK(rewrite)->Name("parseAndPack");

}  // namespace
}  // namespace tavoli
