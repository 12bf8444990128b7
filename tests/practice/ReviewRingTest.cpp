#include <gtest/gtest.h>

#include "practice/ReviewRing.h"

namespace tavoli {
namespace {

/// The history itself is the model: at the end of a cycle, the cycle before it.
std::vector<int> dueByHistory(const std::vector<int>& history, int cycle) {
  const auto count = static_cast<int>(history.size());
  if (cycle == 0 || count % cycle != 0 || count < 2 * cycle) return {};
  const auto from = history.begin() + (count - 2 * cycle);
  return {from, from + cycle};
}

TEST(ReviewRingTest, LagsOneCycleBehindTheLearner) {
  for (int cycle = 0; cycle <= 20; ++cycle) {
    for (const int forgetAt : {1, 7, 50}) {
      SCOPED_TRACE(testing::Message() << "cycle " << cycle << ", forgets at " << forgetAt);
      ReviewRing ring(cycle);
      std::vector<int> history;
      for (int i = 1; i <= 200; ++i) {
        if (i == forgetAt) {
          ring.clear();
          history.clear();
        }
        // Items of a list that wraps round come again.
        history.push_back(i % 37 + 1);
        ASSERT_EQ(ring.reviewCheck(history.back()), dueByHistory(history, cycle)) << i;
      }
    }
  }
}

}  // namespace
}  // namespace tavoli
