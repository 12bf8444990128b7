#include "practice/screens/AnswerBox.h"

#include <QKeyEvent>

#include "practice/screens/ScaledFont.h"

namespace tavoli {

AnswerBox::AnswerBox(QWidget* parent) : EnglishBox(parent) {
  QFont fixed(QStringList{QStringLiteral("ＭＳ ゴシック"), QStringLiteral("Noto Sans Mono CJK JP"),
                          QStringLiteral("IPAGothic"), QStringLiteral("monospace")});
  fixed.setStyleHint(QFont::Monospace);
  fixed.setPointSizeF(font().pointSizeF());
  setFont(scaled(fixed, 1.5));
}

void AnswerBox::keyPressEvent(QKeyEvent* event) {
  Q_EMIT keyArrived();
  if (event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F35)
    event->ignore();
  else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    Q_EMIT entered();
  else
    EnglishBox::keyPressEvent(event);
}

void AnswerBox::focusOutEvent(QFocusEvent* event) {
  EnglishBox::focusOutEvent(event);
  Q_EMIT left();
}

void AnswerBox::mouseReleaseEvent(QMouseEvent* event) {
  EnglishBox::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) Q_EMIT clicked();
}

}  // namespace tavoli
