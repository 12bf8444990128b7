#include <gtest/gtest.h>

#include "tests/support/Drill.h"
#include "tests/support/Print.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::Drill;

/// A sentence whose first answer has "so " to leave out, the contraction "I'm " and the literal
/// "huge" for "big"; a plain second blank follows.
const QString sentence =
    u"問[題]|000012I am so big.060801010105001091104huge^000003two00000000^|説明"_s;
/// The word "big" with a synonym and two meanings.
const QString word = u"|large^|000大きい^100偉大な^|"_s;

TEST(ReviewDrillTest, JudgesByTheTable) {
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
      {"right", S, "r", 2, false, right, u"", u"", true},
      {"contraction", S, "v", 2, false, variant, u"", u"", true},
      {"tolerated is no wrong entry", S, "twt", 1, false, u"", tolerated, u"", false},
      {"mark missing", S, "m", 1, false, u"", noMark, u"I am so big", false},
      {"wrong mark", S, "q", 1, false, u"", wrongMark, u"I am so big?", false},
      {"slips are no wrong entries", S, "mqmqw", 1, false, u"", wrong, u"", false},
      {"wrong twice", S, "ww", 2, false, revealed, wrong, u"", true},
      {"the next blank has its own two", S, "www", 2, false, u"", wrong, u"", false},
      {"last blank wrong twice", S, "rww", 2, true, u"two　が正解です。", full, u"", false},
      {"wrong once, then right", S, "wr", 2, false, right, u"", u"", true},
      {"F1", S, "1", 1, false, u"I am (so )big.", u"", u"", true},
      {"word by a synonym", W, "t", 1, false, u"", toleratedWord, u"", false},
      {"word wrong twice", W, "ww", 1, true, u"big　が正解です。", fullWord, u"", false},
      {"nothing typed", W, "e", 1, false, u"", u"", u"", true},
      {"F1 at the full answer is refused", W, "r1", 1, true, right, fullWord, u"", false},
      {"F1 again begins anew", W, "1rr1r", 1, false, twice, u"", u"", false},
      {"a wrong entry between", W, "1rwrr", 1, true, right, fullWord, u"", false},
      {"second: next blank", S, "1rv", 2, false, variant, u"", u"", true},
      {"the next blank owes nothing", S, "1rrr", 2, true, right, full, u"", false},
      {"F1 on both blanks", S, "1rr1r", 2, false, once, u"", u"", false},
      {"revealed: owes nothing more", S, "1wwr", 2, true, right, full, u"", false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Drill drill({row.record, W});
    drill.conditions.requiredRepeatWord = 3;
    drill.conditions.requiredRepeatSent = 2;
    drill.startReview();
    drill.press(row.keys);
    const ReviewDrill& review = drill.loop->review();
    EXPECT_EQ(review.reviewPOS(), 1);
    EXPECT_EQ(review.reviewPOS1(), row.POS1);
    EXPECT_EQ(review.nextDue(), row.nextDue);
    EXPECT_EQ(drill.review.awaited, row.nextDue);
    EXPECT_EQ(drill.review.message, QString::fromUtf16(row.message));
    EXPECT_EQ(drill.review.fullAnswer, QString::fromUtf16(row.fullAnswer));
    EXPECT_EQ(drill.review.answer, QString::fromUtf16(row.answer));
    drill.review.time.seconds = 0;
    drill.pass(1);
    EXPECT_EQ(drill.review.time.seconds, row.clock ? 1 : 0);
    drill.press("KK");
    EXPECT_FALSE(drill.loop->復習中());
  }
}

TEST(ReviewDrillTest, ColoursWhatIsWrongAndLooksWordsUp) {
  Drill drill({word, sentence});
  drill.startReview();
  const test::RecordingReview& screen = drill.review;
  EXPECT_EQ(screen.question, u"大きい\n偉大な"_s) << "all meanings at once";
  drill.loop->review().enter(u"bug"_s);
  EXPECT_EQ(screen.red, u"u"_s);
  EXPECT_EQ(screen.lookedUp, u"bug"_s);
  drill.press("req");
  EXPECT_EQ(screen.question, u"問題"_s);
  EXPECT_EQ(screen.red, u"?"_s);
  EXPECT_EQ(screen.lookedUp, u"bug"_s) << "sentences are not looked up";
}

TEST(ReviewDrillTest, TheNextItemForgetsWhatTheLastOneOwed) {
  Drill drill({word, word, sentence});
  drill.startReview();
  drill.press("w1Kw");
  EXPECT_FALSE(drill.review.awaited) << "its first wrong entry";
  drill.press("r");
  EXPECT_TRUE(drill.review.awaited) << "not asked for, so typed once";
  drill.press("K");
  EXPECT_FALSE(drill.review.awaited);
  EXPECT_EQ(drill.review.fullAnswer, QString());
  drill.press("rr");
  EXPECT_TRUE(drill.loop->復習中());
  drill.loop->review().answerBoxClicked();
  EXPECT_FALSE(drill.loop->復習中());
}

TEST(ReviewDrillTest, GivesAndKeepsTheStartOfAnAnswer) {
  Drill drill(
      {u"問|030009He is big00000000^|"_s,
       u"次の英文に誤りがあれば訂正しなさい。％％He [am] big.|000010He is big.00000000^|"_s});
  drill.startReview();
  ReviewDrill& review = drill.loop->review();
  EXPECT_EQ(drill.review.answer, u"He "_s);
  for (const QString& typed : {u""_s, u"He "_s, u"He"_s, u"  "_s}) review.enter(typed);
  drill.press("w");
  EXPECT_EQ(drill.review.answer, u"He "_s);
  EXPECT_FALSE(review.nextDue()) << "entries of nothing new cost nothing";
  drill.press("re");
  EXPECT_TRUE(review.correcting());
  EXPECT_EQ(drill.review.answer, u"He am big."_s);
  drill.press("w");
  EXPECT_EQ(drill.review.answer, u"He am big."_s);
}

TEST(ReviewDrillTest, SpeaksTheAnswerAndIsSilencedByTheFirstKey) {
  Drill drill({word, u"問|000019am not = am no more00000000^|"_s});
  drill.startReview();
  drill.press("1r");
  EXPECT_EQ(drill.speaker.said, QStringList(2, u"big"_s));
  EXPECT_EQ(drill.speaker.stopped, 1);
  drill.press("re");
  drill.loop->review().keyPressed();
  drill.loop->review().keyPressed();
  EXPECT_EQ(drill.speaker.stopped, 2) << "once for each item";
  drill.press("1");
  EXPECT_EQ(drill.speaker.said.last(), u"am no more"_s) << "what stands behind the =";
  EXPECT_EQ(drill.review.message, u"am not = am no more"_s);
  drill.loop->review().keyPressed();
  EXPECT_EQ(drill.review.message, QString());
}

TEST(ReviewDrillTest, TimesSentencesAsWords) {
  Drill drill({sentence});
  drill.conditions.targetSentA = drill.conditions.targetSentB = 99;
  drill.startReview();
  drill.pass(16);
  EXPECT_EQ(drill.speaker.said, QStringList{u"Time is up."_s}) << "12 characters, 16 seconds";
  drill.press("r");
  drill.pass(60);
  drill.press("r");
  EXPECT_EQ(drill.times.休憩時間, 60) << "since the last entry";
  EXPECT_FALSE(drill.review.time.running);
}

}  // namespace
}  // namespace tavoli
