// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/EnglishBox.h"

namespace tavoli {

/// The box that answers are typed into.
class AnswerBox final : public EnglishBox {
  Q_OBJECT
 public:
  explicit AnswerBox(QWidget* parent = nullptr);

  /// What the box says while it is empty.
  void setHint(const QString& hint);
  const QString& hint() const { return m_hint; }
  /// While Enter is awaited nothing can be typed, and the box says so.
  void awaitEnter(bool awaited);

 Q_SIGNALS:
  /// A key that is no function key arrives; it takes effect after this.
  void keyArrived();
  void entered();
  void clicked();
  /// The focus has gone elsewhere.
  void left();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QString m_hint;
};

}  // namespace tavoli
