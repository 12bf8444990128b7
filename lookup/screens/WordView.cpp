// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/screens/WordView.h"

#include <QMouseEvent>
#include <QTextCursor>

#include "lookup/LookUp.h"

namespace tavoli {

void WordView::pickWord() {
  const QTextCursor cursor = textCursor();
  const QString word = wordAt(toPlainText(), cursor.selectionStart(),
                              cursor.selectionEnd() - cursor.selectionStart());
  if (!word.isEmpty()) Q_EMIT wordClicked(word);
}

void WordView::mouseReleaseEvent(QMouseEvent* event) {
  const bool left = event->button() == Qt::LeftButton;
  MarkedView::mouseReleaseEvent(event);
  if (left) pickWord();
}

}  // namespace tavoli
