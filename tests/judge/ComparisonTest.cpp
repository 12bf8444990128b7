#include <gtest/gtest.h>

#include "data/Text.h"
#include "judge/Comparison.h"
#include "tests/support/Print.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

/// The four settings by the digit of their menu entry, 1 to 4.
ComparisonSettings mode(int menu) {
  return comparisonChoices()[static_cast<size_t>(menu - 1)].settings;
}

CurrentRecord sentence(const QString& answer, const QString& tail = u"00000000"_s) {
  return ParseRecord(
      u"問|000"_s + digits(static_cast<int>(answer.size()), 3) + answer + tail + u"^|"_s, QString(),
      TableCode::sentences);
}

CurrentRecord word(const QString& 英語, const QString& synonyms = QString()) {
  return ParseRecord(u'|' + synonyms + u"|000意味^|"_s, 英語, TableCode::first);
}

TEST(ComparisonTest, JudgesInAllFourModes) {
  // Verdicts for menu41 to menu44.
  const struct {
    const char* name;
    const char16_t* answer;
    const char16_t* typed;
    int verdicts[4];
  } cases[] = {
      {"equal", u"I am a boy.", u"I am a boy.", {1, 1, 1, 1}},
      {"outer blanks", u"I am a boy.", u"  I am a boy.  ", {1, 1, 1, 1}},
      {"other case", u"I am a boy.", u"i AM a boy.", {1, 3, 1, 3}},
      {"a blank too many", u"I am a boy.", u"I  am a boy.", {3, 3, 1, 1}},
      {"hyphen for blank", u"ice cream", u"ice-cream", {3, 3, 1, 1}},
      {"hyphen alone for a hyphen", u"-", u"-", {1, 1, 3, 3}},
      {"a longer start", u"I am a boy.", u"I am a bo", {3, 3, 3, 3}},
      {"mark missing", u"I am a boy.", u"I am a boy", {4, 4, 4, 4}},
      {"mark missing, other case", u"I am a boy.", u"i am a boy", {4, 3, 4, 3}},
      {"wrong mark", u"I am a boy.", u"I am a boy?", {5, 5, 5, 5}},
      {"other mark for !", u"Go!", u"Go.", {5, 5, 5, 5}},
      {"a letter for the mark", u"I am a boy.", u"I am a boyx", {3, 3, 3, 3}},
      {"mark within quotes", u"He said, \"Go.\"", u"He said, \"Go\"", {3, 3, 3, 3}},
      {"full-width letters and blanks", u"I am a boy.", u"Ｉ　ａｍ　ａ　ｂｏｙ．", {1, 1, 1, 1}},
      {"curly apostrophe", u"I'm a boy.", u"I’m a boy.", {1, 1, 1, 1}},
      {"curly quotes", u"\"Go!\"", u"“Ｇｏ！”", {1, 1, 1, 1}},
      {"wave dash of the answer's own", u"try ～ing", u"try ～ing", {1, 1, 1, 1}},
      {"tilde is no wave dash", u"～ or so", u"~ or so", {3, 3, 3, 3}},
  };
  for (const auto& c : cases) {
    for (int menu = 1; menu <= 4; ++menu) {
      SCOPED_TRACE(testing::Message() << c.name << ", menu4" << menu);
      const Comparison result =
          COMP(sentence(QString::fromUtf16(c.answer)), 1, QString::fromUtf16(c.typed), mode(menu));
      EXPECT_EQ(static_cast<int>(result.ANScomp), c.verdicts[menu - 1]);
      EXPECT_EQ(result.typedAnswer, trimBlanks(QString::fromUtf16(c.typed)));
    }
  }
}

TEST(ComparisonTest, MarksTheStretchThatDiffers) {
  const struct {
    const char* name;
    int menu;
    const char16_t* answer;
    const char16_t* typed;
    int NGP, NGP2;
  } cases[] = {
      {"the end", 1, u"I am a boy.", u"I am a bay", 9, 10},
      {"case", 2, u"I am a boy.", u"i AM a boy.", 1, 4},
      {"a word", 3, u"I am a boy.", u"I was a boy.", 3, 5},
      {"ignored blanks are skipped", 3, u"I am a boy.", u"I  am a bay.", 10, 10},
      {"a start: behind what was typed", 1, u"I am a boy.", u"I am", 5, 5},
      {"wrong mark: the last character", 1, u"I am a boy.", u"I am a boy?", 11, 11},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const Comparison result =
        COMP(sentence(QString::fromUtf16(c.answer)), 1, QString::fromUtf16(c.typed), mode(c.menu));
    EXPECT_EQ(result.NGP, c.NGP);
    EXPECT_EQ(result.NGP2, c.NGP2);
  }
}

TEST(ComparisonTest, TheStretchNeverLeavesWhatWasTypedToTheLeft) {
  const QString letters = u"ab .-"_s;
  for (int n = 0; n < 5 * 5 * 5 * 5 * 5 * 5; ++n) {
    QString text;
    for (int rest = n, i = 0; i < 6; ++i, rest /= 5) text += letters[rest % 5];
    const QString answer = trimBlanks(text.left(3));
    if (answer.isEmpty()) continue;
    for (int menu = 1; menu <= 4; ++menu) {
      Comparison result = COMP(sentence(answer), 1, text.sliced(3), mode(menu));
      if (result.ANScomp != Verdict::Wrong || result.typedAnswer.isEmpty()) continue;
      widenBlank(result);
      ASSERT_GE(result.NGP, 1) << qPrintable(text);
      ASSERT_LE(result.NGP2, std::max(answer.size(), result.typedAnswer.size()) + 1);
    }
  }
}

TEST(ComparisonTest, WidensASingleBlank) {
  const auto widened = [](const QString& answer, const QString& typed) {
    Comparison c = COMP(sentence(answer), 1, typed, mode(1));
    widenBlank(c);
    return cut(c.typedAnswer, c.NGP, c.NGP2 - c.NGP + 1);
  };
  EXPECT_EQ(widened(u"a-cd"_s, u"a cd"_s), u"a c"_s);
  EXPECT_EQ(widened(u"abxcd"_s, u"abycd"_s), u"y"_s);
}

TEST(ComparisonTest, TellsRightVariantsFromToleratedOnes) {
  // "I am" may be contracted, "big" may be "large", "very " may be left out.
  const CurrentRecord record = sentence(u"I am a very big man."_s, u"081201010105001131505large"_s);
  const struct {
    const char16_t* typed;
    Verdict verdict;
    bool accepted;
  } cases[] = {
      {u"I am a very big man.", Verdict::Right, false},
      {u"I'm a very big man.", Verdict::Variant, true},
      {u"I am a big man.", Verdict::Variant, true},
      {u"I'm a big man.", Verdict::Variant, true},
      {u"I’m a ｂｉｇ man．", Verdict::Variant, true},
      {u"I am a very large man.", Verdict::Variant, false},
      {u"I'm a large man.", Verdict::Variant, false},
      {u"I'm a large man", Verdict::Wrong, false},
      {u"I am a very big man", Verdict::MarkMissing, false},
  };
  for (const auto& c : cases) {
    const Comparison result = COMP(record, 1, QString::fromUtf16(c.typed), mode(3));
    SCOPED_TRACE(qPrintable(QString::fromUtf16(c.typed)));
    EXPECT_EQ(result.ANScomp, c.verdict);
    EXPECT_EQ(result.accepted, c.accepted);
    EXPECT_EQ(result.matchedVariant > 0, c.verdict == Verdict::Variant && !c.accepted);
  }
}

TEST(ComparisonTest, AnAcceptedVariantCountsWhereAToleratedOneReadsTheSame) {
  // The tolerated text stands before the accepted one, or behind it.
  for (const QString& literal : {u"011004I'm "_s, u"010504I'm "_s}) {
    const CurrentRecord record = sentence(u"I am very big."_s, u"061001010105001"_s + literal);
    EXPECT_TRUE(COMP(record, 1, u"I'm big."_s, mode(1)).accepted);
  }
}

TEST(ComparisonTest, SynonymsOfAWordAreTolerated) {
  const CurrentRecord record = word(u"big"_s, u"large^great size^"_s);
  EXPECT_EQ(COMP(record, 1, u"BIG"_s, mode(3)).ANScomp, Verdict::Right);
  const Comparison synonym = COMP(record, 1, u"greatsize"_s, mode(3));
  EXPECT_EQ(synonym.ANScomp, Verdict::Variant);
  EXPECT_FALSE(synonym.accepted);
  EXPECT_EQ(COMP(word(u"Mr."_s), 1, u"Mr"_s, mode(3)).ANScomp, Verdict::Wrong)
      << "a word knows no missing mark";
  EXPECT_EQ(COMP(record, 1, u"-"_s, mode(3)).ANScomp, Verdict::Wrong);
}

TEST(ComparisonTest, TidiesWhatWasTyped) {
  EXPECT_EQ(CleanTypedAnswer(u"  Yes ,  I   am　. "_s), u"Yes, I am ."_s);
  EXPECT_EQ(CleanTypedAnswer(u" 　 "_s), QString());
  EXPECT_EQ(CleanTypedAnswer(u"a  ,b"_s), u"a,b"_s);
  EXPECT_EQ(CleanTypedAnswer(u"〜 −"_s), u"～ －"_s);
}

TEST(ComparisonTest, ChoicesAndStoredSettingsAreTheSame) {
  for (int choice = 0; choice < 4; ++choice) {
    const ComparisonSettings settings = mode(choice + 1);
    EXPECT_EQ(comparisonSettings(settings.compareMode, settings.compareFlag), settings);
    EXPECT_EQ(comparisonChoiceOf(settings), choice);
  }
}

}  // namespace
}  // namespace tavoli
