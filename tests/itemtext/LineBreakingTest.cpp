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

/// The lines with their marks written out.
QStringList linesOf(const QString& marked, double width) {
  QStringList lines;
  for (const MarkedText& line : breakLines(parseMarks(marked), width, widthOf)) {
    QString text = line.text;
    qsizetype shift = 0;
    for (const MarkedText::Span& span : line.spans) {
      const bool underlined = span.kind == MarkedText::Span::Kind::Underlined;
      text.insert(span.offset + shift++, underlined ? u'[' : u'{');
      text.insert(span.offset + span.length + shift++, underlined ? u']' : u'}');
    }
    lines.append(text);
  }
  return lines;
}

TEST(LineBreakingTest, BreaksWhereAReaderExpectsIt) {
  const struct {
    const char* name;
    const char16_t* text;
    double width;
    std::vector<const char16_t*> lines;
  } cases[] = {
      {"all fits", u"I am big.", 9, {u"I am big."}},
      {"nothing", u"", 9, {u""}},
      {"behind a blank", u"I am big.", 8, {u"I am ", u"big."}},
      {"the blank itself needs no room", u"I am big.", 4, {u"I am ", u"big."}},
      {"between Japanese characters", u"日本語です", 6, {u"日本語", u"です"}},
      {"behind Latin punctuation before Japanese", u"He is.彼は", 7, {u"He is.", u"彼は"}},
      {"nor two", u"「日本語」。", 10, {u"「日本", u"語」。"}},
      {"no opening mark at the end", u"日本（語）", 6, {u"日本", u"（語）"}},
      {"a number stays whole", u"答は 3.14です", 7, {u"答は ", u"3.14で", u"す"}},
      {"an apostrophe", u"we don't", 6, {u"we ", u"don't"}},
      {"a hyphen", u"an ice-cream", 8, {u"an ", u"ice-", u"cream"}},
      {"a blank to fill in", u"He (   ) it", 7, {u"He ", u"(   ) ", u"it"}},
      {"a word beyond the line", u"abcdefghij kl", 4, {u"abcd", u"efgh", u"ij ", u"kl"}},
      {"a pair of code units", u"\U00020BB7\U00020BB7", 1, {u"\U00020BB7", u"\U00020BB7"}},
      {"line marks", u"一％％二", 9, {u"一", u"", u"二"}},
      {"a mark goes on", u"I {am big} now", 6, {u"I {am }", u"{big} ", u"now"}},
      {"over a line mark too", u"[一％二]三", 9, {u"[一]", u"[二]三"}},
      {"a marked gap is seen", u"[          ]", 4, {u"[    ]", u"[    ]", u"[  ]"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    QStringList expected;
    for (const char16_t* line : c.lines) expected.append(QString::fromUtf16(line));
    EXPECT_EQ(linesOf(QString::fromUtf16(c.text), c.width), expected);
  }
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
    qsizetype markedCharacters = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
      const QString& line = lines[i].text;
      QString seen = line;
      while (seen.endsWith(u' ') || seen.endsWith(u'　')) seen.chop(1);
      ASSERT_LE(widthOf(seen), width) << qPrintable(line);
      for (const MarkedText::Span& span : lines[i].spans) {
        ASSERT_LE(span.offset + span.length, line.size());
        markedCharacters += span.length;
      }
      joined += line;
      if (marked.text.mid(joined.size(), 1) == u"\n") {
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
    for (const MarkedText::Span& span : marked.spans)
      markedCharacters -= span.length - marked.text.mid(span.offset, span.length).count(u'\n');
    ASSERT_EQ(markedCharacters, 0) << "what was marked is marked";
  }
}

}  // namespace
}  // namespace tavoli
