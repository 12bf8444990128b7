// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "practice/PracticeSet.h"

namespace tavoli {

/// The items that the learner wants on paper. They are printed in one job at the end of the run.
class QuestionRequests {
 public:
  static constexpr int capacity = 30;

  /// Notes an item as it stands now, and returns what the learner is told: that it will be printed,
  /// or why not. A key is noted once.
  QString request(const PracticeItem& item);

  const std::vector<PracticeItem>& items() const { return m_items; }
  void clear() { m_items.clear(); }

 private:
  std::vector<PracticeItem> m_items;
};

}  // namespace tavoli
