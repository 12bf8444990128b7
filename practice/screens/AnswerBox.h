#pragma once

#include "practice/screens/EnglishBox.h"

namespace tavoli {

/// The box that answers are typed into. Fixed pitch, so that a missing blank shows.
class AnswerBox final : public EnglishBox {
  Q_OBJECT
 public:
  explicit AnswerBox(QWidget* parent = nullptr);

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
};

}  // namespace tavoli
