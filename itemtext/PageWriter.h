// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

#include "itemtext/MarkedText.h"
#include "system/PageSurface.h"

namespace tavoli {

/// A text with what stands in the column before it.
struct LabelledText {
  QString label;
  MarkedText text;
};

/// The measures of a document of lines, in twips of the sheet.
struct LineLayout {
  double sideMargin;
  double topMargin;
  double labelWidth;   ///< of the column before the texts
  double textHeight;   ///< of a page's lines, its head among them
  double lineSpacing;  ///< from line to line, in heights of a line
  PageFont font;       ///< of all that is not marked
};

/// Writes line after line on the sheets of a document, and goes on to the next one where one is
/// full. Every page begins with a head and its number.
class PageWriter {
 public:
  PageWriter(PageSurface& page, const LineLayout& layout, const QString& head);

  /// The lines that paragraphs take beside the column of labels; a label stands at the first of
  /// its paragraph.
  std::vector<LabelledText> linesOf(const std::vector<LabelledText>& paragraphs);

  /// Nothing stands on the page but its head.
  bool pageIsEmpty() const;
  /// How many more lines the page takes.
  int linesLeft() const { return m_linesPerPage - m_line; }

  void write(const LabelledText& line);
  /// A line across the page, in the height of a line of text.
  void rule();
  /// Shows that the page ends here on purpose: fills it up with a character, and begins the next.
  void fillPage(QChar filling);

 private:
  double right() const { return m_page.width() - m_layout.sideMargin; }
  double y() const { return m_layout.topMargin + m_line * m_pitch; }
  PageFont marked(MarkedText::Span::Kind kind) const;
  void beginPage();
  void writeHead();
  void writeMarked(const MarkedText& text);

  PageSurface& m_page;
  LineLayout m_layout;
  QString m_head;
  double m_pitch = 0;
  int m_linesPerPage = 0;
  int m_line = 0;
  int m_pageNumber = 0;
};

}  // namespace tavoli
