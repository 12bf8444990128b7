// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "speech/WordSpeech.h"
#include "tests/speech/Spoken.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(WordSpeechTest, FollowsEveryStepOfTheWordRules) {
  const struct {
    const char* name;
    QString word;
    QString onDemand;  ///< empty for nothing
    QString listed;
    bool exception = false;
  } cases[] = {
      {"plain", u"cat"_s, u"cat"_s, u"cat"_s},
      {"1 respelt", u"a coup d'etat"_s, u"coup de tar > a coup d'etat"_s,
       u"coup de tar > a coup d'etat"_s, true},
      {"1 respelt as it is", u"live on"_s, u"live on"_s, u"live on"_s, true},
      {"1 silent", u"cartoonist"_s, u""_s, u""_s, true},
      {"1 not as a whole", u"a minute"_s, u"a minute"_s, u"a minute"_s},
      {"2 and 3", u"A with A and A of A b"_s,
       u"'A' with 'A' and A of A b > A with A and A of A b"_s,
       u"'A' with 'A' and A of A b > A with A and A of A b"_s},
      {"4 one letter", u"A"_s, u""_s, u""_s},
      {"5", u"from A to A"_s, u"from 'A' to 'A' > from A to A"_s,
       u"from 'A' to 'A' > from A to A"_s},
      {"6 and 7", u"be ～ of ～"_s, u"be '...' of '...' > be ... of ..."_s, u"be .. of .."_s},
      {"phrases are left", u"have read"_s, u"have read"_s, u"have read"_s},
      {"nothing", u""_s, u""_s, u""_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const std::optional<Utterance> spoken = SpeakWord(c.word);
    EXPECT_EQ(test::told(spoken ? SpeechList{*spoken} : SpeechList()), c.onDemand);
    EXPECT_EQ(test::told(speechAns(c.word).arraySPEECH), c.listed);
    EXPECT_EQ(speechAns(c.word).pronExceptionFlag, c.exception);
  }
}

TEST(WordSpeechTest, Spells) {
  EXPECT_EQ(test::told({spelling(u"aA-b"_s)}), u"'a' A - b  > a A - b "_s);
  EXPECT_EQ(test::told({spelling(u"a b"_s)}), u"-"_s);
}

}  // namespace
}  // namespace tavoli
