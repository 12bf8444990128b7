#include <gtest/gtest.h>

#include "home/CopyComparison.h"
#include "home/LineTexts.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

using enum CopyRelation;

/// "a1x b2" is machine a with change 1 and token x, and machine b with change 2; "-" is a copy as
/// delivered, "" a used one without a row.
CopyPast past(const char* text) {
  CopyPast past;
  past.used = QLatin1String(text) != QLatin1String("-");
  if (!past.used || *text == '\0') return past;
  past.descent.emplace();
  for (const QString& machine : QString::fromUtf8(text).split(u' '))
    (*past.descent)[machine.left(1)] = {machine.mid(1, 1).toLongLong(), machine.mid(2)};
  return past;
}

TEST(CopyComparisonTest, TellsWhichCopyCameFromWhich) {
  const struct {
    const char* work;
    const char* placed;
    CopyRelation expected;
  } cases[] = {
      {"a1", "a2", WorkOlder},      {"a2", "a1", PlacedOlder},      {"a1", "a1 b1", WorkOlder},
      {"a1 b1", "a1", PlacedOlder}, {"a2 b1", "a1 b2", Diverged},   {"a1", "b1", Diverged},
      {"a1x", "a1y", Diverged},     {"a1x b1", "a1y b2", Diverged}, {"a1x b1", "a1x b1", Diverged},
      {"a9", "", Diverged},         {"", "a9", Diverged},           {"", "", Diverged},
      {"-", "a1", WorkOlder},       {"-", "", WorkOlder},           {"-", "-", WorkOlder},
      {"a1", "-", PlacedOlder},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.work) + " / " + c.placed);
    EXPECT_EQ(compareCopies(past(c.work), past(c.placed), false), c.expected);
    EXPECT_EQ(compareCopies(past(c.work), past(c.placed), true), Same);
  }
}

TEST(LineTextsTest, JoinsWithoutLosingALine) {
  const struct {
    const char* name;
    const char* first;
    const char* second;
    const char* joined;
  } cases[] = {
      {"the same", "ab", "ab", "ab"},
      {"the second goes on", "ab", "abb", "abb"},
      {"the first goes on", "abb", "ab", "abb"},
      {"nothing yet", "", "a", "a"},
      {"each has its own", "abc", "abd", "abcd"},
      {"a full one goes on and loses its first", "abcde", "bcdea", "bcdea"},
      {"a full one of nothing but new lines", "abcde", "fghij", "fghij"},
      {"one that is not full loses nothing", "ab", "bc", "abc"},
  };
  const auto lines = [](const char* text) {
    QStringList list = QString::fromUtf8(text).split(QString());
    list.removeAll(QString());
    return list;
  };
  for (const auto& c : cases)
    EXPECT_EQ(joinedLines(lines(c.first), lines(c.second), 5), lines(c.joined)) << c.name;
}

}  // namespace
}  // namespace tavoli
