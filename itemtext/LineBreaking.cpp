// SPDX-License-Identifier: GPL-3.0-or-later

#include "itemtext/LineBreaking.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// How good a place is to break at; the better one is taken, and of equals the last.
enum class Place {
  Never,       ///< inside a character
  LastResort,  ///< inside a word, or before a closing mark
  Awkward,     ///< where scripts meet, behind a hyphen or slash, or inside a marked gap
  Good
};

bool isBlank(QChar c) {
  return c == u' ' || c == u'\u3000';
}

bool isFullWidthLatin(QChar c) {
  return c.unicode() >= 0xFF01 && c.unicode() < 0xFF61 && c.isLetterOrNumber();
}

bool isJapanese(QChar c) {
  const char16_t u = c.unicode();
  if (u >= 0xFF01 && u <= 0xFFEF) return !isFullWidthLatin(c);
  return c.isSurrogate() || (u >= 0x2E80 && u <= 0x9FFF) || (u >= 0xF900 && u <= 0xFAFF);
}

/// A letter or digit of a Latin word or a number, full-width ones included.
bool isLatin(QChar c) {
  return (c.isLetterOrNumber() || c.isMark()) && !isJapanese(c);
}

bool isPunctuation(QChar c) {
  return c.isPunct() || c == u'～';
}

bool isOpening(QChar c) {
  return c.category() == QChar::Punctuation_Open || c.category() == QChar::Punctuation_InitialQuote;
}

bool isClosing(QChar c) {
  static const QString marks = u"。、．，.,)!?！？：；:;・ー｡､･ｰﾞﾟ"_s;
  return marks.contains(c) || c.category() == QChar::Punctuation_Close ||
         c.category() == QChar::Punctuation_FinalQuote;
}

/// What holds together without a blank: words and numbers with the marks in and around them.
bool isTight(QChar c) {
  return isLatin(c) || (isPunctuation(c) && !isJapanese(c));
}

class Paragraph {
 public:
  Paragraph(const MarkedText& text, double width, const TextMeasure& measure)
      : m_text(text), m_width(width), m_measure(measure) {}

  void breakInto(std::vector<MarkedText>& lines, qsizetype from, qsizetype end) const {
    for (;;) {
      const qsizetype next = endOfLine(from, end);
      lines.push_back(piece(from, next));
      if (next >= end) return;
      from = next;
    }
  }

 private:
  bool isMarked(qsizetype i) const {
    return std::ranges::any_of(m_text.spans, [i](const MarkedText::Span& span) {
      return i >= span.offset && i < span.offset + span.length;
    });
  }

  /// The end of what is seen of a line.
  qsizetype visibleEnd(qsizetype from, qsizetype end) const {
    while (end > from && isBlank(m_text.text[end - 1]) && !isMarked(end - 1)) --end;
    return end;
  }

  bool fits(qsizetype from, qsizetype end) const {
    return m_measure(m_text.text.sliced(from, visibleEnd(from, end) - from)) <= m_width;
  }

  /// What it is like to break before the i-th character, which is not the first one.
  Place placeBefore(qsizetype i) const {
    const QChar before = m_text.text[i - 1];
    const QChar after = m_text.text[i];
    if (before.isHighSurrogate() && after.isLowSurrogate()) return Place::Never;
    if (isClosing(after)) return Place::LastResort;
    if (isTight(before) && isTight(after))
      return before == u'-' || before == u'/' ? Place::Awkward : Place::LastResort;
    if (isBlank(after)) return isMarked(i) ? Place::Awkward : Place::LastResort;
    if (isBlank(before)) return Place::Good;
    if (isOpening(before)) return Place::LastResort;
    const bool japanese = (isJapanese(before) || isFullWidthLatin(before)) &&
                          (isJapanese(after) || isFullWidthLatin(after));
    return isPunctuation(before) || japanese ? Place::Good : Place::Awkward;
  }

  qsizetype endOfLine(qsizetype from, qsizetype end) const {
    qsizetype best = end;
    Place bestPlace = Place::Never;
    for (qsizetype i = from + 1; i < end; ++i) {
      const Place place = placeBefore(i);
      if (place == Place::Never) continue;
      // One place is taken even where not so much as that fits.
      if (bestPlace != Place::Never && !fits(from, i)) return best;
      if (place >= bestPlace) {
        best = i;
        bestPlace = place;
      }
    }
    return fits(from, end) || bestPlace == Place::Never ? end : best;
  }

  MarkedText piece(qsizetype from, qsizetype end) const {
    MarkedText line = plainText(m_text.text.sliced(from, end - from));
    for (const MarkedText::Span& span : m_text.spans) {
      const qsizetype first = std::max(span.offset, from);
      const qsizetype last = std::min(span.offset + span.length, end);
      if (first < last) line.spans.push_back({span.kind, first - from, last - first});
    }
    return line;
  }

  const MarkedText& m_text;
  double m_width;
  const TextMeasure& m_measure;
};

}  // namespace

std::vector<MarkedText> breakLines(const MarkedText& text, double width,
                                   const TextMeasure& measure) {
  std::vector<MarkedText> lines;
  const Paragraph paragraph(text, width, measure);
  for (qsizetype from = 0;;) {
    const qsizetype end = text.text.indexOf(u'\n', from);
    paragraph.breakInto(lines, from, end < 0 ? text.text.size() : end);
    if (end < 0) return lines;
    from = end + 1;
  }
}

}  // namespace tavoli
