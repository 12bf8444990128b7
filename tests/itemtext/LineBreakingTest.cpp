#include <QRegularExpression>

#include <gtest/gtest.h>

#include "itemtext/LineBreaking.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

/// Two for a full-width character, one for any other.
double widthOf(const QString& text) {
  double width = 0;
  for (const QChar c : text) width += c.unicode() < 0x1000 ? 1 : 2;
  return width;
}

TEST(LineBreakingTest, BreaksWhereAReaderExpectsIt) {
  const struct {
    const char* name;
    const char16_t* text;
    double width;
    const char16_t* lines;
  } cases[] = {
      {"behind a blank", u"I am big.", 8, u"I am |big."},
      {"the blank itself needs no room", u"I am big.", 4, u"I am |big."},
      {"behind Latin punctuation before Japanese", u"He is.彼は", 7, u"He is.|彼は"},
      {"nor two closing marks", u"「日本語」。", 10, u"「日本|語」。"},
      {"no opening mark at the end", u"日本（語）", 6, u"日本|（語）"},
      {"a number stays whole", u"答は 3.14です", 7, u"答は |3.14で|す"},
      {"a hyphen", u"an ice-cream", 8, u"an |ice-|cream"},
      {"a blank to fill in", u"He (   ) it", 7, u"He |(   ) |it"},
      {"a word beyond the line", u"abcdefghij kl", 4, u"abcd|efgh|ij |kl"},
      {"a pair of code units", u"\U00020BB7\U00020BB7", 1, u"\U00020BB7|\U00020BB7"},
      {"a marked gap is seen", u"[          ]", 4, u"    |    |  "},
      {"and broken rather than a closing mark cut off", u"a[  ]、", 3, u"a | 、"},
  };
  for (const auto& c : cases) {
    QStringList lines;
    for (const MarkedText& line :
         breakLines(parseMarks(QString::fromUtf16(c.text)), c.width, widthOf))
      lines.append(line.text);
    EXPECT_EQ(lines.join(u'|'), QString::fromUtf16(c.lines)) << c.name;
  }
}

/// The kind of mark on each character.
QString marksOf(const MarkedText& text) {
  QString marks(text.text.size(), u'.');
  for (const MarkedText::Span& span : text.spans)
    for (qsizetype i = span.offset; i < span.offset + span.length; ++i)
      marks[i] = span.kind == MarkedText::Span::Kind::Underlined ? u'_' : u'*';
  return marks;
}

/// Mixed text keeps every rule at every width that its longest piece fits into.
TEST(LineBreakingTest, RandomTextKeepsTheRules) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const QStringList pieces =
      u"日本語|です|。|、|「|」|word|don't|3.14|big,|end.|(a)| |  |　|％|～|a"_s.split(u'|');
  static const QRegularExpression latinEnd(u"[A-Za-z0-9]$"_s);
  static const QRegularExpression latinStart(u"^[A-Za-z0-9]"_s);
  static const QRegularExpression closing(u"^[。、．，）」』.,)!?]"_s);
  for (int round = 0; round < 3000; ++round) {
    QString text;
    QChar open;
    for (auto n = random() % 40; n > 0; --n) {
      // Between the two ends of a Japanese word at most two pieces can hold together.
      text += n % 3 == 0 ? u"日本語"_s : pieces[static_cast<qsizetype>(random()) % pieces.size()];
      if (random() % 4 != 0) continue;
      const QChar opening = random() % 2 == 0 ? u'[' : u'{';
      text += open.isNull() ? opening : open == u'[' ? u']' : u'}';
      open = open.isNull() ? opening : QChar();
    }
    if (!open.isNull()) text += open == u'[' ? u']' : u'}';
    const MarkedText marked = parseMarks(text);
    ASSERT_FALSE(marked.unpaired);
    SCOPED_TRACE(qPrintable(text));
    const auto width = static_cast<double>(16 + random() % 30);
    const auto lines = breakLines(marked, width, widthOf);
    QString joined;
    QString marks;
    for (size_t i = 0; i < lines.size(); ++i) {
      const QString& line = lines[i].text;
      QString seen = line;
      while (seen.endsWith(u' ') || seen.endsWith(u'　')) seen.chop(1);
      ASSERT_LE(widthOf(seen), width) << qPrintable(line);
      joined += line;
      marks += marksOf(lines[i]);
      if (marked.text.mid(joined.size(), 1) == u"\n") {
        marks += marksOf(marked)[joined.size()];
        joined += u'\n';
        continue;
      }
      if (i + 1 == lines.size()) continue;
      const QString& next = lines[i + 1].text;
      ASSERT_FALSE(line.isEmpty());
      ASSERT_FALSE(latinEnd.match(line).hasMatch() && latinStart.match(next).hasMatch())
          << qPrintable(line) << "|" << qPrintable(next);
      ASSERT_FALSE(closing.match(next).hasMatch()) << qPrintable(line) << "|" << qPrintable(next);
    }
    ASSERT_EQ(joined, marked.text);
    ASSERT_EQ(marks, marksOf(marked));
  }
}

}  // namespace
}  // namespace tavoli
