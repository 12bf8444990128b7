// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>
#include <random>

#include "speech/SpeechOccasions.h"
#include "speech/SpeechTags.h"
#include "tests/speech/Spoken.h"
#include "tests/support/Seed.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(SpeechOccasionsTest, SpeaksItemsWithTheirComments) {
  CurrentRecord boy = test::sentence(u"He ( ) a boy."_s, {u"is"_s});
  boy.コメント = u"I am he.％彼"_s;
  CurrentRecord silent = test::sentence(u"He is."_s, {u"彼"_s});
  silent.コメント = boy.コメント;
  const struct {
    const char* name;
    CurrentRecord record;
    QString list;
  } cases[] = {
      {"sentence", boy, u"He is a boy. / I am he."_s},
      {"silent sentence", silent, u""_s},
      {"word", test::word(u"boy"_s, u"I am he."_s), u"boy / I am he."_s},
      {"respelt word", test::word(u"via"_s, u"I am he."_s), u"vi-a > via"_s},
      {"silent word", test::word(u"dove"_s, u"I am he."_s), u""_s},
      {"one letter", test::word(u"x"_s, u"I am he."_s), u"I am he."_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(test::told(itemSpeech(c.record)), c.list);
  }
}

TEST(SpeechOccasionsTest, RepeatsTheWholeListWithItsContexts) {
  const auto entry = [](const QString& text) { return Utterance{text, text}; };
  const SpeechList list = {Utterance(),      entry(u"a"_s),           entry(u"= be"_s),
                           entry(u"so A"_s), entry(u"b: c"_s),        entry(u";:"_s),
                           entry(u":b"_s),   {u"so 'A'"_s, u"so A"_s}};
  QString spoken;
  for (const Utterance& u : SPEECH(list, 2)) spoken += taggedText(u);
  const QString once =
      uR"(\Ctx="E-mail"\\Map="a"="a"\\Map="b: c"="b: c"\\Map=";:"=";:"\)"
      uR"(\Ctx="E-mail"\\Map=":b"=":b"\)"_s;
  EXPECT_EQ(spoken, once + once);
  EXPECT_EQ(SPEECH(list, 1).size(), 4) << "empty entries are left out";
  EXPECT_TRUE(SPEECH({}, 2).empty());
  EXPECT_TRUE(SPEECH(list, 0).empty());
  EXPECT_EQ(SPEECH({entry(u"a"_s)}, 1, u" dove "_s)[0].context, u""_s) << "read by auto play";
  EXPECT_EQ(SPEECH({entry(u"a"_s)}, 1, u"boy"_s)[0].context, u"E-mail"_s);
  EXPECT_TRUE(発Exception({u"x"_s, u"a;"_s})) << "what is shown counts";
  EXPECT_FALSE(発Exception({u"a;"_s, u"x"_s}));
}

TEST(SpeechOccasionsTest, SpeaksAnswersThatAreShown) {
  using enum ShowAnswerMode;
  const auto sentence = [](const QStringList& answers) {
    return test::sentence(u"I ( )."_s, answers);
  };
  const struct {
    const char* name;
    ShowAnswerMode mode;
    CurrentRecord record;
    int k;
    QString list;
  } cases[] = {
      {"sentence", onDemand, sentence({u"a"_s, u" b "_s}), 2, u"b"_s},
      {"behind =", inReview, sentence({u"a = b=c"_s}), 1, u"b=c"_s},
      {"in.", onDemand, sentence({u"Come in."_s}), 1, u"Come in > Come in."_s},
      {"table", inReview, sentence({u"have read in."_s}), 1, u"have red in > have read in."_s},
      {"nothing behind =", inReview, sentence({u"a="_s}), 1, u""_s},
      {"silent sentence", onDemand, sentence({u"私"_s, u"b"_s}), 2, u""_s},
      {"no such answer", onDemand, sentence({u"a"_s}), 2, u""_s},
      {"word", onDemand, test::word(u"cat"_s), 1, u"c 'a' t  > c a t  / cat / c 'a' t  > c a t "_s},
      {"word in the review", inReview, test::word(u"cat"_s), 1, u"cat"_s},
      {"idiom", onDemand, test::word(u"be ～"_s), 1, u"be '...' > be ..."_s},
      {"silent word", onDemand, test::word(u"dove"_s), 1, u"d o v e  / d o v e "_s},
      {"no word", onDemand, test::word(u""_s), 1, u""_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(test::told(ShowAnswer(c.mode, c.record, c.k)), c.list);
  }
  EXPECT_FALSE(ShowAnswer(onDemand, sentence({u"a"_s}), 1)[0].bare) << "always a tag";
}

TEST(SpeechOccasionsTest, SoundsWhenTheTimeIsUp) {
  for (const int choice : {0, 1, 2, 3}) {
    SCOPED_TRACE(choice);
    const TimeUp sound = TimeUpSound(true, choice);
    EXPECT_EQ(sound.beep, choice == 1);
    ASSERT_EQ(sound.utterance.has_value(), choice == 2);
    if (sound.utterance) EXPECT_EQ(taggedText(*sound.utterance), uR"(\Map="Time is up."=""\)"_s);
    EXPECT_FALSE(TimeUpSound(false, choice).beep || TimeUpSound(false, choice).utterance);
  }
}

TEST(SpeechOccasionsTest, NoTextCrashesTheRules) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const QString alphabet = u"()（）％％[]{}＝==～～△×＜＞\"'.!?AAa1:/ \\  \n日I"_s;
  const auto text = [&](int longest) {
    QString made;
    for (auto n = random() % static_cast<unsigned>(longest); n > 0; --n)
      made += alphabet[static_cast<qsizetype>(random()) % alphabet.size()];
    return made;
  };
  for (int round = 0; round < 20'000; ++round) {
    const int longest = round % 1000 == 0 ? 10'000 : 30;
    CurrentRecord record = test::sentence(text(longest), {u'a' + text(9), u'I' + text(longest)});
    record.at(1).先頭文字数 = static_cast<int>(random() % 12);
    record.コメント = text(longest);
    SpeechList list = itemSpeech(record);
    record.sentence = false;
    record.英語 = text(longest);
    for (const Utterance& u : itemSpeech(record)) list.push_back(u);
    for (const Utterance& u : ShowAnswer(ShowAnswerMode::onDemand, record, 1)) list.push_back(u);
    for (const Utterance& u : SPEECH(list, 1)) parseTags(taggedText(u));
  }
}

}  // namespace
}  // namespace tavoli
