#pragma once

#include <array>

namespace tavoli {

class TableCursor;

/// How many questions were finished this month, by the level of the item: 中学, 高校, 専門.
struct MonthCounts {
  std::array<int, 3> words{};
  std::array<int, 3> sentences{};
};

/// Reads the month's counts from the learner's progress record; all 0 where there is none yet.
MonthCounts readMonthCounts(TableCursor& rsBDIC);

}  // namespace tavoli
