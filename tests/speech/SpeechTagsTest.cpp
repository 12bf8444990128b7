// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>
#include <random>

#include "speech/SpeechTags.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(SpeechTagsTest, WritesAndReadsTags) {
  const struct {
    const char* name;
    Utterance utterance;
    QString text;
  } cases[] = {
      {"two halves", {u"have red"_s, u"have read"_s}, uR"(\Map="have red"="have read"\)"_s},
      {"nothing to show", {u"Time is up."_s, u""_s}, uR"(\Map="Time is up."=""\)"_s},
      {"nothing to say", {u""_s, u"..."_s}, uR"(\Map=""="..."\)"_s},
      {"quotes", {u"\"A\" of B\""_s, u"=\"B"_s}, uR"(\Map=""A" of B""="="B"\)"_s},
      {"context", {u"a"_s, u"b"_s, u"E-mail"_s}, uR"(\Ctx="E-mail"\\Map="a"="b"\)"_s},
      {"speed",
       {u"あ"_s, u"亜"_s, u""_s, 190, VoiceLanguage::Japanese},
       uR"(\Spd=190\\Map="あ"="亜"\)"_s},
      {"a bare text", bareUtterance(u"Hello!"_s), u"Hello!"_s},
      {"nothing", {}, u""_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(taggedText(c.utterance), c.text);
    EXPECT_TRUE(parseTags(c.text, c.utterance.voice) == c.utterance);
  }
  const QString guarded = taggedText({u"\"a\"=\"=\"b\"="_s, u"\"a\"=\"b\"\\"_s});
  EXPECT_EQ(parseTags(guarded).spoken, u"\"a\" =\" =\"b\" ="_s) << "quotes that would end a half";
  EXPECT_EQ(parseTags(guarded).shown, u"\"a\"=\"b\" \\"_s);
}

TEST(SpeechTagsTest, ReadsDamagedTags) {
  const struct {
    const char* name;
    QString text;
    QString spoken;
    QString shown;
    int speed = 0;
    QString context = {};
  } cases[] = {
      {"tags among text", uR"(I \Map="red"="read"\ \Spd=90\it.)"_s, u"I red it."_s, u"I read it."_s,
       90},
      {"small letters", uR"(\map="a"="b"\)"_s, u"a"_s, u"b"_s},
      {"one half", uR"(\Map="a"\ \Map="b"="c"\)"_s, u"a b"_s, u"a c"_s},
      {"unclosed in the first half", uR"(\Map="a \Spd=3\ b)"_s, u"a  b"_s, u"a  b"_s},
      {"unclosed in the second half", uR"(\Map="a"="b \Ctx="c)"_s, u"a"_s, u"b c"_s},
      {"unclosed context", uR"(\Ctx="E-mail a \Spd=5\b)"_s, u"E-mail a b"_s, u"E-mail a b"_s},
      {"unclosed speed", uR"(\Spd=190 a)"_s, u" a"_s, u" a"_s, 190},
      {"a speed that is none", uR"(\Spd=x\a\Spd=-4\b)"_s, u"ab"_s, u"ab"_s},
      {"a value without quotes", uR"(\Map=a \Ctx=b)"_s, u"a b"_s, u"a b"_s},
      {"put together by another", uR"(\Map="\M\Spd=3\ap="x"="y"\)"_s, u"x"_s, u"y"_s},
      {"context cut short", uR"(\Ctx="a"\b)"_s, u"b"_s, u"b"_s, 0, u"a"_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const Utterance read = parseTags(c.text);
    EXPECT_EQ(read.spoken, c.spoken);
    EXPECT_EQ(read.shown, c.shown);
    EXPECT_EQ(read.speed, c.speed);
    EXPECT_EQ(read.context, c.context);
  }
}

TEST(SpeechTagsTest, GivesBackWhateverItWroteAndNeverSpeaksATag) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const QStringList parts = {u"\""_s,        u"="_s,     u"\\"_s,   u"\\Map=\""_s,
                             u"\\Spd=7\\"_s, u"\"=\""_s, u"\"\\"_s, u"\\Ctx=\""_s,
                             u" "_s,         u"Sp"_s,    u"～"_s,   u"a"_s,
                             u"\n"_s,        u"\x01"_s,  u"日"_s,   QChar(0) + u"p="_s,
                             u"d=\\M"_s,     u"ap=\\C"_s};
  const auto text = [&] {
    QString made;
    for (auto n = random() % 12; n > 0; --n)
      made += parts[static_cast<qsizetype>(random()) % parts.size()];
    return made;
  };
  const auto holdsTag = [](const QString& t) {
    return t.contains(u"\\Map="_s, Qt::CaseInsensitive) ||
           t.contains(u"\\Spd="_s, Qt::CaseInsensitive) ||
           t.contains(u"\\Ctx="_s, Qt::CaseInsensitive);
  };
  int exact = 0;
  for (int round = 0; round < 20'000; ++round) {
    Utterance said{text(), text()};
    if (random() % 2) said.context = u"E-mail"_s;
    if (random() % 2) said.speed = 1 + static_cast<int>(random() % 300);
    const Utterance read = parseTags(taggedText(said));
    const Utterance any = parseTags(said.spoken);
    for (const QString& half : {read.spoken, read.shown, any.spoken, any.shown})
      ASSERT_FALSE(holdsTag(half)) << qPrintable(half) << " of " << qPrintable(said.spoken);
    const QString both = said.spoken + u'a' + said.shown;
    if (said.isEmpty() || holdsTag(both)) continue;
    if (both.contains(u"\"=\"") || both.contains(u"\"\\") || said.spoken.endsWith(u"\"=")) {
      EXPECT_EQ(QString(read.spoken).remove(u' '), QString(said.spoken).remove(u' '));
      EXPECT_EQ(QString(read.shown).remove(u' '), QString(said.shown).remove(u' '));
      continue;
    }
    ASSERT_TRUE(read == said) << qPrintable(taggedText(said));
    ++exact;
  }
  EXPECT_GT(exact, 1000);
  for (const QString& part : parts) parseTags(part.repeated(100'000));
}

}  // namespace
}  // namespace tavoli
