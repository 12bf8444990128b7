// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "speech/QuestionSpeech.h"
#include "speech/SpeechTable.h"
#include "tests/speech/Spoken.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(QuestionSpeechTest, FollowsEveryStepOfSpeechQA) {
  const struct {
    const char* name;
    QString question;
    QStringList answers;
    QString list;
  } cases[] = {
      {"2 Japanese answer", u"I am ( )."_s, {u"私は"_s, u"a"_s}, u""_s},
      {"2 numbered answer", u"問"_s, {u"(1) (a)"_s}, u""_s},
      {"2 numbered answer, closed up", u"問"_s, {u"(1)(a)"_s}, u""_s},
      {"2 only the first answer counts", u"問"_s, {u"a"_s, u"私"_s}, u"- / a / 私"_s},
      {"2 other voice: no place for the question",
       u"I ( ) ( )."_s,
       {u"受動態=|It is."_s},
       u"It is."_s},
      {"2 other voice that fits", u"問％It ( )."_s, {u"能動態=|is"_s}, u"It is."_s},
      {"3 correction", u"次の英文に誤りが。％He ( ) a boy."_s, {u"is"_s}, u"- / is"_s},
      {"4 marks", u"{I} [am] ( ) boy."_s, {u"a"_s}, u"I am a boy."_s},
      {"5 lines in a row", u"問％％％[％]I am ( )％％％％He is ( )."_s, {u"b"_s}, u"He is b."_s},
      {"6 an empty line at once", u"％I am ( )."_s, {u"a"_s}, u"- / a"_s},
      {"6.1 number", u"(1)He ( ) a boy."_s, {u"is"_s}, u"He is a boy."_s},
      {"6.1 two numbers, one dropped", u"(1) (2) is ( )."_s, {u"a"_s, u"b"_s}, u"a is b."_s},
      {"6.1 blank", u"( ) it ( )."_s, {u"Is"_s, u"me"_s}, u"Is it me."_s},
      {"6.1 wide blank", u"(　) it."_s, {u"Is"_s}, u"Is it."_s},
      {"6.2 wide equals", u"I am a boy.％＝ I am ( )."_s, {u"male"_s}, u"= I am male."_s},
      {"6.3 digits are no English", u"10 men ( ).％ It ( ). "_s, {u"is"_s}, u"It is."_s},
      {"6.3 quote", u"\"Is it ( )?\""_s, {u"you"_s}, u"\"Is it you?\""_s},
      {"6.4 dialogue", u"I ( ).％A: Is it ( )?"_s, {u"am"_s, u"me"_s}, u"- / am / me"_s},
      {"7 last line", u"私は( )。％△I ( )."_s, {u"am"_s}, u"- / am"_s},
      {"8 no English", u"私は"_s, {u"I am."_s}, u"- / I am."_s},
      {"9 wave", u"I am～( )."_s, {u"a"_s}, u"I am.. a."_s},
      {"10 triangle", u"I△ am ( )."_s, {u"a"_s}, u"I am a."_s},
      {"11 notes", u"I am ( ). (注＜x＞)"_s, {u"a"_s}, u"I am a."_s},
      {"11 wide notes", u"I am ( ). ＜注＞ （注）"_s, {u"a"_s}, u"I am a."_s},
      {"11 the last bracket only", u"I am ( ). (注) (注)"_s, {u"a"_s}, u"- / a"_s},
      {"11 at position 5", u"( )?(a)％I am ( )."_s, {u"a"_s}, u"I am a."_s},
      {"11 at position 6", u"( )? (a)％I am ( )."_s, {u"a"_s, u"b"_s}, u"a? I am b."_s},
      {"12 ends", u"I ( )!％\"I ( ).\"％I ( )"_s, {u"a"_s, u"b"_s}, u"I a! \"I b.\""_s},
      {"12 too short", u"I ( ).％I"_s, {u"a"_s}, u"- / a"_s},
      {"12 as short as a stop", u"I ( ).％△."_s, {u"a"_s}, u"I a."_s},
      {"13 what stands in brackets", u"I (go, went) (a(b) it."_s, {u"w"_s, u"b"_s}, u"I w b it."_s},
      {"13 unclosed", u"I ( ).％It ( is."_s, {u"am"_s}, u"- / am"_s},
      {"13 sentence without blanks", u"I am.％It ( )."_s, {u"is"_s}, u"It is."_s},
      {"14 counts differ",
       u"I ( ).％It ( )."_s,
       {u"a"_s, u"b"_s, u"c"_s},
       u"I (). It (). / a / b / c"_s},
      {"14 no blank", u"I am."_s, {u"a"_s}, u"- / a"_s},
      {"14 brackets in an answer", u"I ( ) ( )."_s, {u"()"_s, u"b"_s}, u"I () b."_s},
      {"14 behind a given =", u"I ( ) ( )."_s, {u"a=|b"_s, u"c=d"_s}, u"I b c=d."_s},
      {"14 a given start without =", u"I ( )."_s, {u"a=b|c"_s}, u"I a=bc."_s},
      {"15 behind =", u"問"_s, {u"a = b|c"_s, u"d=e"_s}, u"- / bc / d=e"_s},
      {"wrapped: in.", u"Go ( ) in."_s, {u"get"_s}, u"Go get in > Go get in."_s},
      {"wrapped: an answer",
       u"問"_s,
       {u" in."_s, u"x in."_s, u"coin."_s},
       u"- / in. / x in > x in. / coin."_s},
      {"wrapped: table", u"I have ( )."_s, {u"read"_s}, u"I have red. > I have read."_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(test::told(speechQA(test::sentence(c.question, c.answers))), c.list);
  }
}

TEST(QuestionSpeechTest, HoldsNoMoreThan49Pieces) {
  QString question;
  for (int i = 0; i < 50; ++i) question += u"I ( ).％"_s;
  const SpeechList list = speechQA(test::sentence(question, {u"a"_s}));
  EXPECT_EQ(list.front().shown.count(u"()"_s), 49);
}

TEST(QuestionSpeechTest, RespellsPhrases) {
  const struct {
    const char* name;
    QString text;
    QString spoken;
  } cases[] = {
      {"first place only", u"I have read what you have read."_s,
       u"I have red what you have read."_s},
      {"as far as it goes", u"World War III, have ready"_s, u"World War 2I, have redy"_s},
      {"in the table's order", u"Ann read, have read"_s, u"Ann red, have red"_s},
      {"case counts", u"Have read"_s, u"Have read"_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(ApplySpeechTable(c.text).spoken, c.spoken);
    EXPECT_EQ(ApplySpeechTable(c.text).shown, c.text);
  }
  EXPECT_EQ(sentenceEntry(u" in."_s).spoken, u" in."_s) << "not behind a word";
}

}  // namespace
}  // namespace tavoli
