// SPDX-License-Identifier: GPL-3.0-or-later

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include "data/Text.h"
#include "lookup/LookUp.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

constexpr int rowCount = 50000;

/// Keys of letters alone, since a click picks nothing else.
QString keyOf(int i) {
  QString key = QStringLiteral("word");
  for (int rest = i * 7919 % rowCount, n = 0; n < 4; rest /= 26, ++n)
    key += QChar(u'a' + rest % 26);
  return key;
}

/// A dictionary of 50,000 words, made once.
test::TestStore& wideStore() {
  static test::TestStore store;
  static const bool filled = store.database().write([] {
    const QString record =
        test::wordRecord({QStringLiteral("一つ目の意味"), QStringLiteral("二つ目の意味")},
                         {QStringLiteral("synonym")});
    const auto rows = store.database().OpenRecordset(tableSTDIC);
    for (int i = 0; i < rowCount; ++i) {
      rows->AddNew();
      rows->setValue(field英語, keyOf(i));
      rows->setValue(fieldレベル, QStringLiteral("01"));
      rows->setValue(field記憶, QString(stored(MemoryState::全然)));
      rows->setValue(field回数, QStringLiteral("00"));
      rows->setValue(field発同日コ, record);
      if (!rows->Update()) return false;
    }
    return true;
  });
  benchmark::DoNotOptimize(filled);
  return store;
}

/// Reading a row by its number and splitting its record is the least that any look-up does.
void lookUpBare(benchmark::State& state) {
  SQLite::Database database(wideStore().path().toStdString());
  SQLite::Statement row(database, "SELECT * FROM STDIC WHERE rowid=?");
  int i = 0;
  for (auto _ : state) {
    row.reset();
    row.bind(1, 2 + i++ * 31 % rowCount);
    row.executeStep();
    for (const QString& field : QString::fromUtf8(row.getColumn(4).getText()).split(fieldMark))
      benchmark::DoNotOptimize(field.split(elementMark));
  }
}
BENCHMARK(lookUpBare)->Name("lookUp/bare");

void lookUpClick(benchmark::State& state) {
  const auto rows = wideStore().database().OpenRecordset(tableSTDIC);
  LookUp lookUp(*rows);
  int i = 0;
  for (auto _ : state) {
    const QString text = QStringLiteral("This is a %1.").arg(keyOf(i++ * 31 % rowCount));
    benchmark::DoNotOptimize(lookUp.find(wordAt(text, 12, 0)));
  }
}
BENCHMARK(lookUpClick)->Name("lookUp");

void lookUpStep(benchmark::State& state) {
  const auto rows = wideStore().database().OpenRecordset(tableSTDIC);
  LookUp lookUp(*rows);
  lookUp.find(keyOf(rowCount / 2));
  // To and fro is the dearest way to step: each turn begins a new walk.
  for (auto _ : state) {
    benchmark::DoNotOptimize(lookUp.next());
    benchmark::DoNotOptimize(lookUp.previous());
  }
}
BENCHMARK(lookUpStep)->Name("lookUpStep");
BENCHMARK(lookUpBare)->Name("lookUpStep/bare");

}  // namespace
}  // namespace tavoli
