// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/screens/EnglishBox.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

bool isWaveKey(const QKeyEvent& event) {
  constexpr quint32 scanCodeOf0 = 19;  // of X11 and Wayland, whatever Shift makes of the key
  const bool shift0 = event.modifiers().testFlag(Qt::ShiftModifier) &&
                      (event.key() == Qt::Key_0 || event.nativeScanCode() == scanCodeOf0);
  return shift0 || event.text() == u"~";
}

}  // namespace

EnglishBox::EnglishBox(QWidget* parent) : QLineEdit(parent) {
  setAttribute(Qt::WA_InputMethodEnabled, false);
}

void EnglishBox::keyPressEvent(QKeyEvent* event) {
  if (!isWaveKey(*event))
    QLineEdit::keyPressEvent(event);
  else if (!isReadOnly())
    insert(u"～"_s);
}

}  // namespace tavoli
