// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/ProgressCounters.h"

#include <algorithm>

namespace tavoli {

namespace {

constexpr int maxMemoryCount = 32000;

std::optional<Level> levelOf(const QString& 文番) {
  return sentenceLevel(文番.isEmpty() ? QChar() : 文番[0]);
}

}  // namespace

Level courseLevel(Course COURSE) {
  return static_cast<Level>(std::clamp(indexOf(COURSE), 0, 2));
}

Level wordLevel(Course COURSE, TableCode itemTable) {
  return courseLevel(dictionaryAt(COURSE, itemTable));
}

std::optional<Level> sentenceLevel(QChar initial) {
  const std::optional<Course> course = courseOfSentence(initial);
  if (!course) return std::nullopt;
  return courseLevel(*course);
}

std::optional<size_t> memoryPlace(MemoryState state) {
  const int place = indexOf(MemoryState::完全) - indexOf(state);
  if (place < 0 || place > 2) return std::nullopt;
  return static_cast<size_t>(place);
}

void ProgressCounters::countQuestion(Course COURSE, TableCode itemTable,
                                     const QString& itemEnglish) {
  ++回数[courseLevel(COURSE)][0];
  if (itemTable != TableCode::sentences) {
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

void MemoryGrowth::move(Course COURSE, TableCode itemTable, const QString& itemEnglish,
                        MemoryState from, MemoryState to) {
  const std::optional<size_t> source = memoryPlace(from);
  const std::optional<size_t> target = memoryPlace(to);
  if (!source || !target) return;
  const auto moveIn = [&](Three& counts) {
    --counts[*source];
    ++counts[*target];
  };
  if (itemTable == TableCode::sentences) {
    if (const std::optional<Level> level = levelOf(itemEnglish)) moveIn(記憶文増[*level]);
  } else if (itemTable != TableCode::third || courseLevel(COURSE) == 専門) {
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
