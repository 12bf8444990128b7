#include <gtest/gtest.h>

#include "conditions/NumberField.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

using enum NumberField;

TEST(NumberFieldTest, HoldsEveryEntryAgainstItsBounds) {
  const struct {
    NumberField field;
    const char16_t* typed;
    const char16_t* standing;  ///< in the field after the key
    const char16_t* left;      ///< when the field is left
  } cases[] = {
      {LevelFrom, u"7", u"7", u"7"},
      {LevelFrom, u"abc", u"0", u"0"},
      {LevelFrom, u"", u"0", u"0"},
      {LevelTo, u"abc", u"9", u"9"},
      {LevelTo, u"99", u"99", u"99"},
      {LevelTo, u"100", u"10", u"10"},
      {ReviewCycle, u"0", u"0", u"0"},
      {ReviewCycle, u"５", u"5", u"5"},
      {ReviewCycle, u"10", u"3", u"3"},
      {ReviewCycle, u"", u"3", u"3"},
      {MaxLoadWords, u"24991", u"24990", u"24990"},
      {MaxLoadWords, u"99999999999", u"24990", u"24990"},
      {MaxLoadWords, u"5", u"5", u"10"},
      {MaxLoadWords, u"", u"", u"200"},
      {MaxLoadSent, u"0", u"0", u"10"},
      {TargetSentA, u"0.1", u"0.1", u"0.1"},
      {TargetSentA, u"9.99", u"9.99", u"9.99"},
      {TargetSentA, u".25", u".25", u"0.25"},
      {TargetSentA, u"0", u"0", u"0.5"},
      {TargetSentA, u"", u"", u"0.5"},
      {TargetSentA, u"10", u"0.5", u"0.5"},
      {TargetSentA, u"0.05", u"0.5", u"0.5"},
      {TargetWordA, u"1.234", u"0.5", u"0.5"},
      {TargetWordA, u"nan", u"0.5", u"0.5"},
      {TargetSentB, u"0", u"20", u"20"},
      {TargetSentB, u"100", u"20", u"20"},
      {TargetWordB, u"99", u"99", u"99"},
  };
  for (const auto& c : cases) {
    PracticeConditions conditions;
    const QString typed = QString::fromUtf16(c.typed);
    EXPECT_EQ(typeNumber(c.field, typed, conditions), QString::fromUtf16(c.standing))
        << qPrintable(typed);
    EXPECT_EQ(numberText(c.field, conditions), QString::fromUtf16(c.left)) << qPrintable(typed);
    const PracticeConditions read = decodeConditions(encodeConditions(conditions), QString());
    EXPECT_EQ(numberText(c.field, read), QString::fromUtf16(c.left)) << "not in the record";
  }
}

TEST(NumberFieldTest, ArrowsStepWithinTheBounds) {
  const struct {
    NumberField field;
    const char16_t* from;
    int steps;
    const char16_t* to;
  } cases[] = {
      {MaxLoadWords, u"200", 1, u"300"}, {MaxLoadWords, u"100", 1, u"110"},
      {MaxLoadWords, u"110", -1, u"10"}, {MaxLoadWords, u"24950", 1, u"24990"},
      {MaxLoadSent, u"10", -1, u"10"},   {TargetSentA, u"0.5", 1, u"0.55"},
      {TargetSentA, u"0.1", -1, u"0.1"}, {TargetWordA, u"9.99", 1, u"9.99"},
      {TargetWordB, u"99", 1, u"99"},    {ReviewCycle, u"0", -1, u"0"},
      {LevelFrom, u"9", 1, u"10"},
  };
  for (const auto& c : cases) {
    PracticeConditions conditions;
    typeNumber(c.field, QString::fromUtf16(c.from), conditions);
    stepNumber(c.field, c.steps, conditions);
    EXPECT_EQ(numberText(c.field, conditions), QString::fromUtf16(c.to));
  }
}

}  // namespace
}  // namespace tavoli
