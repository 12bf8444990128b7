// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "speech/CommentSpeech.h"
#include "tests/speech/Spoken.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(CommentSpeechTest, FollowsEveryStepOfSpeakComment) {
  const struct {
    const char* name;
    QString comment;
    QString list;
  } cases[] = {
      {"1 one character", u"I"_s, u""_s},
      {"2 marks", u"{I} am [here]."_s, u"I am here."_s},
      {"3 pieces", u"I am he.％I am she.％"_s, u"I am he. / I am she."_s},
      {"3 doubled break", u"I am he.％％I am she."_s, u"I am he."_s},
      {"4 cross", u"×I am he.％I am she."_s, u"I am she."_s},
      {"4 wide equals", u"＝ I am he."_s, u" I am he."_s},
      {"4 first characters", u"9 men go.％(I) am he.％\"I am he.\"％zoo is x"_s,
       u"(I am he. > (I) am he. / \"I am he.\" / zoo is x"_s},
      {"4 leading blank", u" I am he."_s, u""_s},
      {"5 gloss", u"I am he.  私は彼です。I am."_s, u"I am he."_s},
      {"5 gloss behind signs", u"I～ am ＝ he彼"_s, u"I'..' am ＝ he > I.. am ＝ he"_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(test::told(SpeakComment(c.comment, {})), c.list);
  }
  const SpeechList before(3);
  EXPECT_EQ(test::told(SpeakComment(u"I am he."_s, before)), u"- / - / - / I am he."_s);
  EXPECT_EQ(SpeakComment(u"×％"_s.repeated(48) + u"I am.％I am."_s, {}).size(), 1) << "49 pieces";
}

TEST(CommentSpeechTest, FollowsEveryStepOfSpeakCommentPiece) {
  const QString king = u"= Long may the King live! = May the King live long! I live."_s;
  const struct {
    const char* name;
    QString text;
    QString list;
    qsizetype end = 0;  ///< 0 for behind the text
  } cases[] = {
      {"1 the gloss's own wave", u"be in ～する"_s, u"be in"_s, 8},
      {"1 gloss", u"be in する"_s, u"be in"_s, 7},
      {"1 wave at once", u"～する a b c"_s, u""_s, 2},
      {"2 four characters", u"be a "_s, u""_s},
      {"2 five characters", u"be in"_s, u"be in"_s},
      {"2 last bracket", u"be in （"_s, u"be in"_s},
      {"2 plain bracket", u"be a("_s, u"be a"_s},
      {"3 choice", u"be in/at"_s, u""_s},
      {"3 single word", u" being "_s, u""_s},
      {"3 single word before a bracket", u"being ("_s, u""_s},
      {"5 A of B", u"A of B"_s, u"\"A\" of B > A of B"_s},
      {"5 only as a whole", u"A of Bs"_s, u"A of Bs"_s},
      {"5 A and B", u"A and B"_s, u"\"A\" and B > A and B"_s},
      {"5 A or B", u"A or B is"_s, u"\"A\" or B is > A or B is"_s},
      {"5 A differs", u"A differs from B"_s, u"\"A\" differs from B > A differs from B"_s},
      {"5 A had not", u"A had not pp"_s, u"\"A\" had not pp > A had not pp"_s},
      {"5 A =", u"A = B"_s, u"\"A\" = B > A = B"_s},
      {"5 King", king,
       u" Long may the King liv! = May the King liv long! I live. > "
       u" Long may the King live! = May the King live long! I live."_s},
      {"6 every A", u"give A A to A or"_s, u"give 'A' 'A' to 'A' or > give A A to A or"_s},
      {"7 waves", u"be ～ of ～ at"_s, u"be '..' of '..' at > be .. of .. at"_s},
      {"1 last wave", u"be ～ of ～"_s, u"be '..' of > be .. of"_s},
      {"8 last A", u"give A"_s, u"give 'A' > give A"_s},
      {"9 brackets", u"(I) (am) he"_s, u"(I am he > (I) (am) he"_s},
      {"10 equals", u"= be in"_s, u" be in"_s},
      {"10 wide equals", u"＝be in"_s, u"be in"_s},
      {"11 three blanks", u"ab   cd e"_s, u"abcd e > ab   cd e"_s},
      {"11 two blanks", u"ab  cd"_s, u"ab..cd > ab  cd"_s},
      {"11 five blanks", u"ab     cd"_s, u"ab..cd > ab     cd"_s},
      {"12 last in", u"do it again."_s, u"do it again > do it again."_s},
      {"no phrases", u"I have read"_s, u"I have read"_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const qsizetype end = c.end > 0 ? c.end : c.text.size() + 1;
    EXPECT_EQ(test::told(SpeakCommentPiece(c.text, end, {})), c.list);
  }
  EXPECT_EQ(SpeakCommentPiece(u"be in"_s, 6, SpeechList(49)).size(), 50);
  EXPECT_EQ(SpeakCommentPiece(u"be in"_s, 6, SpeechList(50)).size(), 50) << "4 the list is full";
}

}  // namespace
}  // namespace tavoli
