#include <gtest/gtest.h>

#include "practice/ReviewRing.h"

namespace tavoli {
namespace {

/// The history itself is the model: at the end of a cycle, the cycle before it.
std::vector<int> dueByHistory(const std::vector<int>& history, int cycle, size_t forgotten) {
  const auto count = static_cast<int>(history.size());
  if (cycle == 0 || count % cycle != 0 || count < 2 * cycle) return {};
  const auto from = static_cast<size_t>(count - 2 * cycle);
  if (from < forgotten) return {};
  return {history.begin() + static_cast<int>(from),
          history.begin() + static_cast<int>(from) + cycle};
}

TEST(ReviewRingTest, LagsOneCycleBehindTheLearner) {
  for (int cycle = 0; cycle <= 20; ++cycle) {
    for (const size_t forgetAt : {0, 7, 50}) {
      SCOPED_TRACE(testing::Message() << "cycle " << cycle << ", forgets at " << forgetAt);
      ReviewRing ring(cycle);
      std::vector<int> history;
      size_t forgotten = 0;
      for (int i = 1; i <= 200; ++i) {
        if (history.size() == forgetAt) {
          ring.clear();
          forgotten = forgetAt;
        }
        // Items of a list that wraps round come again.
        history.push_back(i % 37 + 1);
        ASSERT_EQ(ring.reviewCheck(history.back()), dueByHistory(history, cycle, forgotten)) << i;
      }
    }
  }
}

}  // namespace
}  // namespace tavoli
