// SPDX-License-Identifier: GPL-3.0-or-later

#include "itemtext/PageWriter.h"

#include <utility>

#include "itemtext/LineBreaking.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int headLines = 2;

}  // namespace

PageWriter::PageWriter(PageSurface& page, const LineLayout& layout, const QString& head)
    : m_page(page), m_layout(layout), m_head(head) {
  m_page.setFont(m_layout.font);
  m_pitch = m_page.lineHeight() * m_layout.lineSpacing;
  m_linesPerPage = static_cast<int>(m_layout.textHeight / m_pitch);
  writeHead();
}

PageFont PageWriter::marked(MarkedText::Span::Kind kind) const {
  PageFont font = m_layout.font;
  font.underline = kind == MarkedText::Span::Kind::Underlined;
  font.bold = !font.underline;
  return font;
}

std::vector<LabelledText> PageWriter::linesOf(const std::vector<LabelledText>& paragraphs) {
  const double width = right() - m_layout.sideMargin - m_layout.labelWidth;
  // Bold letters may be the wider ones: what fits in bold fits in any case.
  m_page.setFont(marked(MarkedText::Span::Kind::Coloured));
  const auto measure = [this](const QString& text) { return m_page.textWidth(text); };
  std::vector<LabelledText> lines;
  for (const LabelledText& paragraph : paragraphs) {
    QString label = paragraph.label;
    for (MarkedText& line : breakLines(paragraph.text, width, measure))
      lines.push_back({std::exchange(label, QString()), std::move(line)});
  }
  m_page.setFont(m_layout.font);
  return lines;
}

bool PageWriter::pageIsEmpty() const {
  return m_line <= headLines;
}

void PageWriter::write(const LabelledText& line) {
  if (linesLeft() == 0) beginPage();
  if (!line.label.isEmpty()) m_page.drawText(m_layout.sideMargin, y(), line.label);
  writeMarked(line.text);
  ++m_line;
}

void PageWriter::rule() {
  const double middle = y() + m_page.lineHeight() / 2;
  m_page.drawLine(m_layout.sideMargin, middle, right(), middle);
  ++m_line;
}

void PageWriter::fillPage(QChar filling) {
  const double width = right() - m_layout.sideMargin;
  const auto count = static_cast<qsizetype>(width / m_page.textWidth(filling));
  for (; linesLeft() > 0; ++m_line)
    m_page.drawText(m_layout.sideMargin, y(), QString(count, filling));
  beginPage();
}

void PageWriter::beginPage() {
  m_page.newPage();
  writeHead();
}

void PageWriter::writeHead() {
  m_line = 0;
  const QString number = u"ページ %1"_s.arg(++m_pageNumber);
  m_page.drawText(m_layout.sideMargin, y(), m_head);
  m_page.drawText(right() - m_page.textWidth(number), y(), number);
  m_line = headLines;
  const double underHead = m_layout.topMargin + (headLines - 0.6) * m_pitch;
  m_page.drawLine(m_layout.sideMargin, underHead, right(), underHead);
}

void PageWriter::writeMarked(const MarkedText& text) {
  double x = m_layout.sideMargin + m_layout.labelWidth;
  const auto write = [&](qsizetype from, qsizetype end, const PageFont& font) {
    if (from == end) return;
    const QString piece = text.text.sliced(from, end - from);
    m_page.setFont(font);
    m_page.drawText(x, y(), piece);
    x += m_page.textWidth(piece);
  };
  qsizetype written = 0;
  for (const MarkedText::Span& span : text.spans) {
    const qsizetype end = span.offset + span.length;
    write(written, span.offset, m_layout.font);
    write(span.offset, end, marked(span.kind));
    written = end;
  }
  write(written, text.text.size(), m_layout.font);
  m_page.setFont(m_layout.font);
}

}  // namespace tavoli
