#include <gtest/gtest.h>

#include "practice/RestTime.h"
#include "practice/ReviewDrill.h"
#include "tests/support/Drill.h"
#include "tests/support/Print.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

/// A sentence whose first answer has "so " to leave out, the contraction "I'm " and the literal
/// "huge" for "big"; a plain second blank follows.
const QString sentence =
    u"問[題]|000012I am so big.060801010105001091104huge^000003two00000000^|説明"_s;
/// The word "big" with a synonym and two meanings.
const QString word = u"|large^|000大きい^100偉大な^|"_s;

class ReviewDrillTest : public testing::Test {
 protected:
  ReviewDrillTest() { restTime.begin(); }

  void start(const QStringList& records) {
    set = test::setOf(records);
    std::vector<int> all;
    for (int i = 1; i <= set.itemCount(); ++i) all.push_back(i);
    review.startReview(all);
  }

  /// Keys: 1 F1, K F11, any other types what `typedBy` says.
  void press(const char* keys) {
    for (; *keys != '\0'; ++keys) {
      const CurrentRecord& record = review.record();
      if (*keys == '1')
        review.showAnswer();
      else if (*keys == 'K')
        review.nextReviewItem();
      else
        review.enter(test::typedBy(
            *keys, record.sentence ? record.text(review.reviewPOS1()) : u"big"_s, record.sentence));
    }
  }

  CourseChoice course;
  PracticeConditions conditions;
  PracticeSet set;
  RunState run{set, course, conditions, {}};
  test::RecordingScreen practice;
  test::RecordingReview screen;
  test::ScriptedDialogs dialogs;
  test::FakeClock clock;
  test::RecordingSpeaker speaker;
  RunClock times;
  RestTime restTime{times, clock, practice};
  int handedBack = 0;
  ReviewDrill review{run,
                     {screen, dialogs, clock, speaker, restTime, [this] { ++handedBack; }, [] {}}};
};

TEST_F(ReviewDrillTest, JudgesByTheTable) {
  const char16_t* full = u"問題\nI am (so )big.\ntwo\n説明";
  const char16_t* fullWord = u"big\n (large )\n大きい  偉大な  ";
  const char16_t* right = u"○　正解です。\n";
  const char16_t* variant = u"◎　正解です。\n";
  const char16_t* wrong = u"nonsense は正解ではありません。";
  const char16_t* tolerated = u"I am so huge. も正解ですが、\nI am so big. を覚えてください。";
  const char16_t* toleratedWord = u"large も正解ですが、\nbig を覚えてください。";
  const char16_t* noMark = u"I am so big は正解ではありません。\n終止符\"．\"がありません。";
  const char16_t* wrongMark = u"I am so big? は正解ではありません。";
  const char16_t* revealed = u"I am so big.　が正解です。";
  const char16_t* once = u"あと 1 回練習して下さい。";
  const char16_t* twice = u"あと 2 回練習して下さい。";
  conditions.requiredRepeatWord = 3;
  conditions.requiredRepeatSent = 2;
  const QString& S = sentence;
  const QString& W = word;
  const struct {
    const char* name;
    const QString& record;
    const char* keys;
    int POS1;
    bool nextDue;
    const char16_t* message;
    const char16_t* fullAnswer;
    const char16_t* answer;
    bool clock;
  } rows[] = {
      {"asked", S, "", 1, false, u"", u"", u"", true},
      {"right", S, "r", 2, false, right, u"", u"", true},
      {"contraction", S, "v", 2, false, variant, u"", u"", true},
      {"omission", S, "o", 2, false, variant, u"", u"", true},
      {"tolerated", S, "t", 1, false, u"", tolerated, u"", false},
      {"tolerated is no wrong entry", S, "twt", 1, false, u"", tolerated, u"", false},
      {"mark missing", S, "m", 1, false, u"", noMark, u"I am so big", false},
      {"wrong mark", S, "q", 1, false, u"", wrongMark, u"I am so big?", false},
      {"slips are no wrong entries", S, "mqmqw", 1, false, u"", wrong, u"", false},
      {"wrong once", S, "w", 1, false, u"", wrong, u"", false},
      {"wrong twice", S, "ww", 2, false, revealed, wrong, u"", true},
      {"the next blank has its own two", S, "www", 2, false, u"", wrong, u"", false},
      {"last blank wrong twice", S, "rww", 2, true, u"two　が正解です。", full, u"", false},
      {"last blank right", S, "rr", 2, true, right, full, u"", false},
      {"wrong once, then right", S, "wr", 2, false, right, u"", u"", true},
      {"F1", S, "1", 1, false, u"I am (so )big.", u"", u"", true},
      {"F1 on the second blank", S, "r1", 2, false, u"two", u"", u"", true},
      {"word right", W, "r", 1, true, right, fullWord, u"", false},
      {"word by a synonym", W, "t", 1, false, u"", toleratedWord, u"", false},
      {"word wrong twice", W, "ww", 1, true, u"big　が正解です。", fullWord, u"", false},
      {"nothing typed", W, "e", 1, false, u"", u"", u"", true},
      {"F1 at the full answer is refused", W, "r1", 1, true, right, fullWord, u"", false},
      {"after F1 a word, first", W, "1r", 1, false, twice, u"", u"", false},
      {"second", W, "1rr", 1, false, once, u"", u"", false},
      {"third: on", W, "1rrr", 1, true, right, fullWord, u"", false},
      {"F1 again begins anew", W, "1rr1r", 1, false, twice, u"", u"", false},
      {"a wrong entry between", W, "1rwrr", 1, true, right, fullWord, u"", false},
      {"after F1 a sentence, first", S, "1r", 1, false, once, u"", u"", false},
      {"second: next blank", S, "1rv", 2, false, variant, u"", u"", true},
      {"the next blank owes nothing", S, "1rrr", 2, true, right, full, u"", false},
      {"F1 on both blanks", S, "1rr1r", 2, false, once, u"", u"", false},
      {"revealed: owes nothing more", S, "1wwr", 2, true, right, full, u"", false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    start({row.record, W});
    press(row.keys);
    EXPECT_EQ(review.reviewPOS(), 1);
    EXPECT_EQ(review.reviewPOS1(), row.POS1);
    EXPECT_EQ(review.nextDue(), row.nextDue);
    EXPECT_EQ(screen.awaited, row.nextDue);
    EXPECT_EQ(screen.message, QString::fromUtf16(row.message));
    EXPECT_EQ(screen.fullAnswer, QString::fromUtf16(row.fullAnswer));
    EXPECT_EQ(screen.answer, QString::fromUtf16(row.answer));
    clock.time = clock.time.addSecs(1);
    screen.time.seconds = 0;
    review.tick();
    EXPECT_EQ(screen.time.seconds, row.clock ? 1 : 0);
    press("KK");
  }
  EXPECT_EQ(handedBack, static_cast<int>(std::size(rows)));
}

TEST_F(ReviewDrillTest, ColoursWhatIsWrongAndLooksWordsUp) {
  start({word, sentence});
  EXPECT_EQ(screen.question, u"大きい\n偉大な"_s) << "all meanings at once";
  review.enter(u"bug"_s);
  EXPECT_EQ(screen.red, u"u"_s);
  EXPECT_EQ(screen.lookedUp, u"bug"_s);
  press("req");
  EXPECT_EQ(screen.question, u"問題"_s);
  EXPECT_EQ(screen.red, u"?"_s);
  EXPECT_EQ(screen.lookedUp, u"bug"_s) << "sentences are not looked up";
}

TEST_F(ReviewDrillTest, TheNextItemForgetsWhatTheLastOneOwed) {
  start({word, word, sentence});
  press("w1K");
  press("w");
  EXPECT_FALSE(review.nextDue()) << "its first wrong entry";
  press("r");
  EXPECT_TRUE(review.nextDue()) << "not asked for, so typed once";
  press("K");
  EXPECT_FALSE(screen.awaited);
  EXPECT_EQ(screen.fullAnswer, QString());
  press("rr");
  EXPECT_EQ(handedBack, 0);
  press("e");
  EXPECT_EQ(handedBack, 1);
  EXPECT_FALSE(review.復習中());
}

TEST_F(ReviewDrillTest, GivesAndKeepsTheStartOfAnAnswer) {
  start({u"問|030009He is big00000000^|"_s,
         u"次の英文に誤りがあれば訂正しなさい。％％He [am] big.|000010He is big.00000000^|"_s});
  EXPECT_EQ(screen.answer, u"He "_s);
  for (const char16_t* typed : {u"", u"He ", u"He", u"  "}) review.enter(QString::fromUtf16(typed));
  press("w");
  EXPECT_EQ(screen.answer, u"He "_s);
  EXPECT_FALSE(review.nextDue()) << "entries of nothing new cost nothing";
  press("re");
  EXPECT_TRUE(review.correcting());
  EXPECT_EQ(screen.answer, u"He am big."_s);
  press("w");
  EXPECT_EQ(screen.answer, u"He am big."_s);
}

TEST_F(ReviewDrillTest, SpeaksTheAnswerAndIsSilencedByTheFirstKey) {
  start({word, u"問|000019am not = am no more00000000^|"_s});
  press("1r");
  EXPECT_EQ(speaker.said, QStringList(2, u"big"_s));
  EXPECT_EQ(speaker.stopped, 1);
  press("re");
  review.keyPressed();
  review.keyPressed();
  EXPECT_EQ(speaker.stopped, 2) << "once for each item";
  press("1");
  EXPECT_EQ(speaker.said.last(), u"am no more"_s) << "what stands behind the =";
  EXPECT_EQ(screen.message, u"am not = am no more"_s);
  review.keyPressed();
  EXPECT_EQ(screen.message, QString());
}

TEST_F(ReviewDrillTest, TimesSentencesAsWords) {
  start({sentence});
  conditions.targetSentB = 99;
  const auto pass = [&](int seconds) {
    clock.time = clock.time.addSecs(seconds);
    review.tick();
  };
  pass(16);
  EXPECT_EQ(speaker.said, QStringList{u"Time is up."_s}) << "12 characters, 16 seconds";
  press("r");
  pass(60);
  press("r");
  EXPECT_EQ(times.休憩時間, 60) << "since the last entry";
  EXPECT_FALSE(screen.time.running);
}

}  // namespace
}  // namespace tavoli
