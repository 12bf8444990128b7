// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "speech/SayAs.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

TEST(SayAsTest, LooksWholeTextsUp) {
  EXPECT_EQ(sayAsWord(u"a coup d'etat"), QStringLiteral("coup de tar"));
  EXPECT_EQ(sayAsWord(u"minute"), QStringLiteral("my-nute"));
  EXPECT_EQ(sayAsWord(u"a minute"), std::nullopt);
  EXPECT_EQ(sayAsWord(u"cartoonist"), QString()) << "not to be spoken";
  EXPECT_EQ(sayAsWord(u"prefecture"), QStringLiteral("prie-fecture")) << "the first row counts";
  EXPECT_EQ(sayAsPhraseTable().size(), 16);
  EXPECT_EQ(sayAsPhraseTable()[3].to, u"have red");
}

}  // namespace
}  // namespace tavoli
