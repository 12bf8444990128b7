// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/AnswerBox.h"

#include <QKeyEvent>

#include "system/TypeFaces.h"
#include "ui/screens/ScaledFont.h"

using namespace Qt::StringLiterals;

namespace tavoli {

AnswerBox::AnswerBox(QWidget* parent) : EnglishBox(parent) {
  QFont fixed(familiesOf(TypeFace::Answers));
  fixed.setStyleHint(QFont::Monospace);
  fixed.setPointSizeF(font().pointSizeF());
  setFont(scaled(fixed, 1.5));
}

void AnswerBox::setHint(const QString& hint) {
  m_hint = hint;
  awaitEnter(isReadOnly());
}

void AnswerBox::awaitEnter(bool awaited) {
  setReadOnly(awaited);
  setPlaceholderText(awaited ? u"Enter キーで次に進みます。"_s : m_hint);
}

void AnswerBox::keyPressEvent(QKeyEvent* event) {
  const bool function = event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F35;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  // A key that is held acts once: on the next question it would act unseen.
  if (event->isAutoRepeat() && (function || enter)) return;
  Q_EMIT keyArrived();
  if (function)
    event->ignore();
  else if (enter)
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
