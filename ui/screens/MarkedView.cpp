// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/screens/MarkedView.h"

#include <QEvent>
#include <QTextCharFormat>
#include <QTextCursor>

namespace tavoli {

namespace {

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128;
}

}  // namespace

QColor markColour(const QPalette& palette) {
  const QColor colour(255, 0, 100);
  return isDark(palette) ? colour.lighter(140) : colour;
}

namespace {

QTextCharFormat formatOf(MarkedText::Span::Kind kind, const QPalette& palette) {
  using Kind = MarkedText::Span::Kind;
  QTextCharFormat format;
  if (kind == Kind::Underlined || kind == Kind::Asked) format.setFontUnderline(true);
  // For those to whom the colour says nothing.
  if (kind == Kind::Coloured || kind == Kind::Asked) format.setFontWeight(QFont::Bold);
  if (kind == Kind::Coloured) format.setForeground(markColour(palette));
  if (kind == Kind::Asked)
    format.setForeground(isDark(palette) ? QColor(110, 185, 255) : QColor(0, 90, 180));
  if (kind == Kind::Answered)
    format.setForeground(isDark(palette) ? QColor(165, 165, 165) : QColor(105, 105, 105));
  return format;
}

}  // namespace

MarkedView::MarkedView(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setFocusPolicy(Qt::TabFocus);
}

void MarkedView::setMarkedText(const MarkedText& marked, Show show) {
  // A new text takes over the look of the place where the caret is.
  if (!m_marked.spans.empty()) setCurrentCharFormat(QTextCharFormat());
  m_marked = marked;
  setPlainText(marked.text);
  drawSpans();
  moveCursor(show == Show::Top ? QTextCursor::Start : QTextCursor::End);
  for (const MarkedText::Span& span : marked.spans) {
    if (span.kind != MarkedText::Span::Kind::Asked) continue;
    QTextCursor asked(document());
    asked.setPosition(static_cast<int>(span.offset + span.length));
    setTextCursor(asked);
  }
}

void MarkedView::drawSpans() {
  QTextCursor cursor(document());
  for (const MarkedText::Span& span : m_marked.spans) {
    cursor.setPosition(static_cast<int>(span.offset));
    cursor.setPosition(static_cast<int>(span.offset + span.length), QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(formatOf(span.kind, palette()));
  }
}

QSize MarkedView::sizeOfLines(int lines) const {
  const int line = fontMetrics().lineSpacing();
  const int border = frameWidth() + static_cast<int>(document()->documentMargin());
  return {8 * line, lines * line + 2 * border};
}

void MarkedView::changeEvent(QEvent* event) {
  QTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) drawSpans();
}

}  // namespace tavoli
