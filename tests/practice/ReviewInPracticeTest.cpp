#include <gtest/gtest.h>

#include "practice/ReviewRing.h"
#include "tests/support/Drill.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::Drill;

/// The word "big" with one meaning, or every third time a sentence with one answer.
QString item(int number, QChar code) {
  const QString asked = u"意味%1"_s.arg(number);
  return number % 3 == 0 ? asked + u"|00"_s + code + u"003big00000000^|"_s
                         : u"||"_s + code + u"00"_s + asked + u"^|"_s;
}

class ReviewInPracticeTest : public testing::Test {
 protected:
  void start(int items, int reviewCycle, MemorySelect memorySelect = MemorySelect::全然) {
    QStringList records;
    for (int i = 1; i <= items; ++i) records.append(item(i, codes.value(i, u'0')));
    drill = std::make_unique<Drill>(records);
    drill->conditions.memorySelect = memorySelect;
    drill->conditions.reviewCycle = reviewCycle;
    drill->start();
  }
  void finish(int items) const {
    for (int i = 0; i < items; ++i) drill->press("re");
  }
  /// Answers all that is asked again, and returns which items that were.
  std::vector<int> reviewed() const {
    std::vector<int> items;
    ReviewDrill& review = drill->loop->review();
    while (drill->loop->復習中()) {
      items.push_back(review.reviewPOS());
      review.enter(u"big"_s);
      review.enter(QString());
    }
    return items;
  }

  std::unique_ptr<Drill> drill;
  QHash<int, QChar> codes;
};

TEST_F(ReviewInPracticeTest, ComesAfterTheItemThatEndsACycleAndHandsBack) {
  start(12, 3);
  finish(5);
  drill->press("r");
  EXPECT_FALSE(drill->loop->復習中()) << "not before the full answer was seen";
  drill->press("e");
  EXPECT_TRUE(drill->review.shown);
  EXPECT_EQ(drill->review.heading, u"高校"_s);
  EXPECT_EQ(drill->review.question, u"意味1"_s);
  EXPECT_FALSE(drill->loop->clockRunning());
  EXPECT_EQ(reviewed(), (std::vector<int>{1, 2, 3}));
  EXPECT_FALSE(drill->review.shown);
  EXPECT_EQ(drill->screen.question, u"意味7"_s);
  EXPECT_TRUE(drill->loop->clockRunning());
  drill->press("r");
  EXPECT_EQ(drill->stored(7).記(1), MemoryState::うろ覚え) << "asked once, so the first try counts";
  EXPECT_EQ(drill->finished(), 7) << "a review counts nothing";
  drill->press("e");
  finish(2);
  EXPECT_EQ(reviewed(), (std::vector<int>{4, 5, 6}));
}

TEST_F(ReviewInPracticeTest, TakesOnlyItemsThatWereReallyAnswered) {
  start(12, 1);
  drill->press("32Ke");
  EXPECT_EQ(drill->loop->POS(), 4);
  drill->press("rer4");
  EXPECT_EQ(drill->loop->POS(), 4) << "left by F4: not taken";
  drill->press("ere");
  EXPECT_FALSE(drill->loop->復習中());
  finish(1);
  EXPECT_EQ(reviewed(), (std::vector<int>{4}));
}

TEST_F(ReviewInPracticeTest, ForgetsItemsThatWereMixed) {
  start(12, 2, MemorySelect::すべて);
  finish(3);
  drill->loop->reshuffle();
  finish(1);
  EXPECT_FALSE(drill->loop->復習中());
  finish(3);
  EXPECT_EQ(reviewed(), (std::vector<int>{1, 2})) << "and begins its cycle anew";
}

/// Whatever is pressed in a review, its items are walked through once and stay as they were, and
/// the practice goes on at the next item, asked or shown from its beginning.
TEST_F(ReviewInPracticeTest, RandomKeysLeadBackToWhereThePracticeStood) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  int reviews = 0;
  for (int cycle = 1; cycle <= 9; ++cycle) {
    for (int i = 1; i <= 30; ++i) codes[i] = QChar(u'0' + (random() % 4 == 0 ? 2 : 0));
    start(30, cycle);
    PracticeLoop& loop = *drill->loop;
    ReviewDrill& review = loop.review();
    while (loop.POS() < 28) {
      const char key = "rrrowwmqe1K"[random() % 11];
      if (!loop.復習中()) {
        if (key != 'K') drill->press(key);
        continue;
      }
      const int POS = loop.POS();
      const int asked = review.reviewPOS();
      const PracticeItem before = drill->set.item(asked);
      drill->press(key);
      ASSERT_EQ(drill->set.item(asked).itemRecord, before.itemRecord);
      ASSERT_EQ(drill->set.item(asked).itemTimes, before.itemTimes);
      ASSERT_EQ(loop.POS(), POS);
      if (loop.復習中()) {
        ASSERT_GE(review.reviewPOS(), asked);
        ASSERT_EQ(review.nextDue(), drill->review.awaited);
        continue;
      }
      ++reviews;
      ASSERT_EQ(loop.確認中(), codes[POS] == u'2');
      ASSERT_EQ(drill->screen.awaited, loop.確認中());
      ASSERT_TRUE(loop.確認中() || loop.POS1() == 1);
      ASSERT_EQ(loop.state().shown.wordShownCount(), loop.確認中() ? 0 : 1);
    }
  }
  EXPECT_GT(reviews, 20);
}

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
