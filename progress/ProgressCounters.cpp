#include "progress/ProgressCounters.h"

#include <algorithm>

namespace tavoli {

namespace {

constexpr QChar tableOfSentences = u'B';
constexpr QChar thirdPlace = u'3';
constexpr int maxMemoryCount = 32000;

std::optional<Level> levelOf(const QString& 文番) {
  return sentenceLevel(文番.isEmpty() ? QChar() : 文番[0]);
}

}  // namespace

Level courseLevel(QChar COURSE) {
  return static_cast<Level>(std::clamp(COURSE.unicode() - u'0', 0, 2));
}

Level wordLevel(QChar COURSE, QChar itemTable) {
  constexpr std::array<std::array<Level, levelCount>, levelCount> levels = {
      {{中学, 高校, 専門}, {高校, 中学, 専門}, {専門, 高校, 中学}}};
  return levels[courseLevel(COURSE)]
               [static_cast<size_t>(std::clamp(itemTable.unicode() - u'1', 0, 2))];
}

std::optional<Level> sentenceLevel(QChar initial) {
  if (initial < u'0' || initial > u'9') return std::nullopt;
  if (initial < u'5') return 中学;
  return initial < u'9' ? 高校 : 専門;
}

std::optional<size_t> memoryPlace(QChar code) {
  if (code < u'0' || code > u'2') return std::nullopt;
  return static_cast<size_t>(u'2' - code.unicode());
}

void ProgressCounters::countQuestion(QChar COURSE, QChar itemTable, const QString& itemEnglish) {
  ++回数[courseLevel(COURSE)][0];
  if (itemTable != tableOfSentences) {
    ++回数単熟[wordLevel(COURSE, itemTable)][0];
  } else if (const std::optional<Level> level = levelOf(itemEnglish)) {
    ++回数文[*level][0];
  }
}

void ProgressCounters::rollOver() {
  for (ByLevel* family : {&時間, &回数単熟, &回数文, &回数}) {
    for (Three& months : *family) {
      months[2] += months[0];
      months[1] = months[0];
      months[0] = 0;
    }
  }
}

void MemoryGrowth::move(QChar COURSE, QChar itemTable, const QString& itemEnglish, QChar from,
                        QChar to) {
  const std::optional<size_t> source = memoryPlace(from);
  const std::optional<size_t> target = memoryPlace(to);
  if (!source || !target) return;
  const auto moveIn = [&](Three& counts) {
    --counts[*source];
    ++counts[*target];
  };
  if (itemTable == tableOfSentences) {
    if (const std::optional<Level> level = levelOf(itemEnglish)) moveIn(記憶文増[*level]);
  } else if (itemTable != thirdPlace || courseLevel(COURSE) == 専門) {
    moveIn(記憶単熟増[wordLevel(COURSE, itemTable)]);
  }
}

void MemoryGrowth::addTo(ProgressCounters& counters) const {
  const auto add = [](ByLevel& counts, const ByLevel& growth) {
    for (size_t level = 0; level < levelCount; ++level) {
      for (size_t i = 0; i < 3; ++i) {
        const int sum = counts[level][i] + growth[level][i];
        counts[level][i] = sum < 0 || sum > maxMemoryCount ? 0 : sum;
      }
    }
  };
  add(counters.記憶単熟, 記憶単熟増);
  add(counters.記憶文, 記憶文増);
}

}  // namespace tavoli
