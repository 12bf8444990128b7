#include "practice/screens/MarkedView.h"

#include <QGuiApplication>
#include <QTextCursor>

namespace tavoli {

namespace {

/// The colour of marked text: a strong pink, lightened where the paper is dark.
QColor markColour(const QPalette& palette) {
  const QColor colour(255, 0, 100);
  return palette.color(QPalette::Base).lightness() < 128 ? colour.lighter(140) : colour;
}

}  // namespace

MarkedView::MarkedView(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setTabChangesFocus(true);
}

void MarkedView::setMarkedText(const MarkedText& marked, Show show) {
  setPlainText(marked.text);
  QTextCursor cursor(document());
  for (const MarkedText::Span& span : marked.spans) {
    cursor.setPosition(static_cast<int>(span.offset));
    cursor.setPosition(static_cast<int>(span.offset + span.length), QTextCursor::KeepAnchor);
    QTextCharFormat format;
    if (span.kind == MarkedText::Span::Kind::Underlined)
      format.setFontUnderline(true);
    else
      format.setForeground(markColour(palette()));
    cursor.mergeCharFormat(format);
  }
  moveCursor(show == Show::Top ? QTextCursor::Start : QTextCursor::End);
}

}  // namespace tavoli
