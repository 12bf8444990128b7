#pragma once

#include <QPushButton>

#include <functional>
#include <map>

#include "practice/PracticeScreen.h"

namespace tavoli {

/// The row of buttons, each of which is a function key too.
class PracticeKeys final : public QWidget {
  Q_OBJECT
 public:
  /// `pressed` is called with the key and whether its button was used.
  using Pressed = std::function<void(FunctionKey key, bool byButton)>;
  explicit PracticeKeys(Pressed pressed, QWidget* parent = nullptr);

  void enableKey(FunctionKey key, bool enabled);
  /// Presses what belongs to a key of the keyboard. False when it is none of the row's.
  bool press(int key);

 private:
  Pressed m_pressed;
  std::map<FunctionKey, QPushButton*> m_buttons;
};

}  // namespace tavoli
