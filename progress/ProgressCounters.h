// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <optional>

#include "data/Courses.h"

namespace tavoli {

/// The study levels, which are the courses too; they number the counters.
using Level = std::size_t;
inline constexpr Level 中学 = 0;
inline constexpr Level 高校 = 1;
inline constexpr Level 専門 = 2;
inline constexpr std::size_t levelCount = 3;

/// The level of a course.
Level courseLevel(Course COURSE);
/// The level of a dictionary by its place in the course's look-up order.
Level wordLevel(Course COURSE, TableCode itemTable);
/// The level of a sentence by the first character of its number; nothing for one that belongs to
/// none.
std::optional<Level> sentenceLevel(QChar initial);

/// Three numbers: items by memory state (完全, うろ覚え, 全然) or figures by month (今月, 先月,
/// 先月まで, the last one with 先月 in it).
using Three = std::array<int, 3>;
using ByLevel = std::array<Three, levelCount>;

/// The place of a memory state among the three numbers, which stand the other way round; nothing
/// for a code that is none.
std::optional<size_t> memoryPlace(MemoryState state);

/// What the learner has reached and done.
struct ProgressCounters {
  ByLevel 記憶単熟{};  ///< words and idioms of each dictionary by memory state
  ByLevel 記憶文{};    ///< sentences of each level by memory state
  ByLevel 時間{};      ///< seconds practised in each course
  ByLevel 回数単熟{};  ///< items finished from each dictionary, whatever the course
  ByLevel 回数文{};    ///< sentences finished of each level
  ByLevel 回数{};      ///< items finished in each course

  bool operator==(const ProgressCounters&) const = default;

  /// Counts a finished item: a sentence or a word of that place.
  void countQuestion(Course COURSE, TableCode itemTable, const QString& itemEnglish);
  /// A new month: what was 今月 becomes 先月 and joins 先月まで. The memory counts stay.
  void rollOver();
};

/// How the memory counts changed in a run.
struct MemoryGrowth {
  ByLevel 記憶単熟増{};
  ByLevel 記憶文増{};

  /// An item has moved from one memory state to another. A dictionary that the course only has as a
  /// third helper is not counted, except in 専門, nor is a sentence of no level.
  void move(Course COURSE, TableCode itemTable, const QString& itemEnglish, MemoryState from,
            MemoryState to);
  /// Adds the growth to the counts. A count that would leave 0 to 32000 becomes 0.
  void addTo(ProgressCounters& counters) const;
};

}  // namespace tavoli
