// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "tests/support/Drill.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::Drill;

TEST(PracticeVoiceTest, SaysWhatEachOccasionHas) {
  const QString sentence =
      u"彼は学生です。％He (   ) a student.|000002is00000000^|Note it well.  よく見て。"_s;
  const QString word = u"||000大きい^|A big dog.  大きな犬。"_s;
  const QString noComment = u"||200大きい^|"_s;
  Drill drill({sentence, word, noComment});
  drill.conditions.firstRepeatSent = 1;
  drill.conditions.firstRepeatWord = 1;
  drill.conditions.memorySelect = MemorySelect::全然とうろ覚え;
  drill.start();
  const auto said = [&] { return std::exchange(drill.speaker.said, {}).join(u'|'); };

  drill.press("1");
  EXPECT_EQ(said(), u"is"_s) << "asked for";
  drill.press("w");
  EXPECT_EQ(said(), QString()) << "a wrong answer";
  drill.press("r");
  const QString whole = u"He is a student.|Note it well."_s;
  EXPECT_EQ(said(), whole + u'|' + whole) << "question and comment, twice";
  drill.press("e");
  drill.pass(100);
  EXPECT_EQ(said(), u"Time is up."_s);
  drill.press("1");
  EXPECT_EQ(said(), u"b i g |big|b i g "_s) << "letters, word, letters";
  drill.press("r");
  EXPECT_EQ(said(), u"big|A big dog.|big|A big dog."_s);
  drill.press("e");
  EXPECT_EQ(said(), u"big"_s) << "shown without being asked: once";

  drill.loop->startReview({2, 1});
  drill.press("1");
  EXPECT_EQ(said(), u"big"_s);
  drill.press("rrree");
  EXPECT_EQ(said(), u"big|big"_s) << "typed as often as is wanted";
  drill.press("rK");
  EXPECT_EQ(said(), u"is|big"_s) << "and the practice shows its item";
}

}  // namespace
}  // namespace tavoli
