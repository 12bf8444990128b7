// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include "data/Expansion.h"
#include "data/Text.h"
#include "judge/Comparison.h"

namespace tavoli {
namespace {

/// A sentence of 120 characters with six places to change, one of them in two ways: 95 variants.
CurrentRecord largestSentence() {
  QString answer;
  while (answer.size() < 119) answer += QStringLiteral("abcdefghi ");
  answer = answer.left(119) + u'.';
  QString tail = QStringLiteral(
      "000000070105"
      "02ab");
  for (int i = 0; i < 6; ++i)
    tail += digits(1 + 15 * i, 2) + digits(5 + 15 * i, 2) + QStringLiteral("03xyz");
  return ParseRecord(
      QStringLiteral("問|000") + digits(120, 3) + answer + tail + QStringLiteral("^|"), QString(),
      TableCode::sentences);
}

const ComparisonSettings settings = comparisonSettings(CompareMode::caseIgnored, true);

void judge(benchmark::State& state, const QString& typed) {
  const CurrentRecord record = largestSentence();
  for (auto _ : state) benchmark::DoNotOptimize(COMP(record, 1, typed, settings).ANScomp);
}

/// Lower-casing and comparing so many texts once each.
void compareBare(benchmark::State& state, const QString& typed, int count) {
  const QString answer = largestSentence().at(1).正;
  for (auto _ : state)
    for (int i = 0; i < count; ++i) benchmark::DoNotOptimize(typed.toLower() == answer.toLower());
}

int variantCount() {
  return static_cast<int>(ExpandAnswers(largestSentence().at(1)).size());
}

const QString right = largestSentence().at(1).正;
const QString wrong = right.chopped(10) + QStringLiteral("different.");

const auto* const registered = [] {
  benchmark::RegisterBenchmark("judgeRight", judge, right);
  benchmark::RegisterBenchmark("judgeRight/bare", compareBare, right, 1);
  benchmark::RegisterBenchmark("judgeVariants", judge, wrong);
  return benchmark::RegisterBenchmark("judgeVariants/bare", compareBare, wrong, variantCount());
}();

void judgeWrong(benchmark::State& state) {
  CurrentRecord record = largestSentence();
  record.at(1).同 = QStringLiteral("00000000");
  for (auto _ : state) benchmark::DoNotOptimize(COMP(record, 1, wrong, settings).NGP);
}
BENCHMARK(judgeWrong);
BENCHMARK_CAPTURE(compareBare, one, wrong, 1)->Name("judgeWrong/bare");

}  // namespace
}  // namespace tavoli
