#include "practice/screens/MarkedView.h"

#include <QEvent>
#include <QTextCursor>

namespace tavoli {

QColor markColour(const QPalette& palette) {
  const QColor colour(255, 0, 100);
  return palette.color(QPalette::Base).lightness() < 128 ? colour.lighter(140) : colour;
}

MarkedView::MarkedView(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setFocusPolicy(Qt::TabFocus);
}

void MarkedView::setMarkedText(const MarkedText& marked, Show show) {
  m_marked = marked;
  setPlainText(marked.text);
  drawSpans();
  moveCursor(show == Show::Top ? QTextCursor::Start : QTextCursor::End);
}

void MarkedView::drawSpans() {
  QTextCursor cursor(document());
  for (const MarkedText::Span& span : m_marked.spans) {
    cursor.setPosition(static_cast<int>(span.offset));
    cursor.setPosition(static_cast<int>(span.offset + span.length), QTextCursor::KeepAnchor);
    QTextCharFormat format;
    if (span.kind == MarkedText::Span::Kind::Underlined) {
      format.setFontUnderline(true);
    } else {
      format.setForeground(markColour(palette()));
      format.setFontWeight(QFont::Bold);  // for those to whom the colour says nothing
    }
    cursor.mergeCharFormat(format);
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
