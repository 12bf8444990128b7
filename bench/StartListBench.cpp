// SPDX-License-Identifier: GPL-3.0-or-later

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include "conditions/StartList.h"
#include "conditions/screens/StartBox.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

constexpr int wordCount = 50000;

/// A dictionary of 50,000 words, made once.
test::TestStore& longStore() {
  static test::TestStore store;
  static const bool filled = store.database().write([] {
    auto rows = store.database().OpenRecordset(tableSTDIC);
    const QString record =
        test::wordRecord({QStringLiteral("一つ目の意味"), QStringLiteral("二つ目の意味")});
    for (int i = 0; i < wordCount; ++i) {
      rows->AddNew();
      rows->setValue(field英語, QStringLiteral("word ") + digits(i * 7919 % wordCount, 5));
      rows->setValue(field発同日コ, record);
      if (!rows->Update()) return false;
    }
    return true;
  });
  benchmark::DoNotOptimize(filled);
  return store;
}

void listBare(benchmark::State& state) {
  SQLite::Database database(longStore().path().toStdString());
  for (auto _ : state) {
    SQLite::Statement rows(database, "SELECT 英語 FROM STDIC ORDER BY 順,英語,rowid");
    QStringList words;
    while (rows.executeStep()) words.append(QString::fromUtf8(rows.getColumn(0).getText()));
    benchmark::DoNotOptimize(words.size());
  }
}
BENCHMARK(listBare)->Name("startList/bare")->Unit(benchmark::kMillisecond);

void fillStartList(benchmark::State& state) {
  StartBox box;
  for (auto _ : state) {
    box.list(wordStarts(longStore().database(), tableSTDIC).value_or(QStringList()));
    box.showText(box.itemText(0));
  }
}
BENCHMARK(fillStartList)->Name("startList")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavoli
