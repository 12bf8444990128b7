// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace tavoli {

/// Remembers the finished items of a run and tells when which of them are to be reviewed: a batch
/// of `reviewCycle` items at every cycle's end, one cycle behind the learner.
class ReviewRing {
 public:
  /// A `reviewCycle` of 0 or less means no review.
  explicit ReviewRing(int reviewCycle);

  /// Takes an item down as finished by a real answer. Returns the items that are now to be
  /// reviewed, in the order of asking; none when no review is due. `reviewSlot` is its index in the
  /// set, from 1.
  std::vector<int> reviewCheck(int reviewSlot);

  /// Begins again. For when the indices stand for other items.
  void clear();

 private:
  int m_reviewCycle;
  int m_reviewCount = 0;
  std::vector<int> m_reviewList;  ///< two cycles of items, the oldest overwritten; 0 for none
};

}  // namespace tavoli
