#pragma once

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include <functional>
#include <map>
#include <vector>

#include "practice/PracticeScreen.h"

namespace tavoli {

/// A button that is a function key too.
struct KeyButton {
  FunctionKey key;
  int index;  ///< of Command1
  QString caption;
  QString tip;
};

/// The keys of a screen in the order of their row; those of `right` stand apart.
struct KeyButtons {
  std::vector<KeyButton> left, right;
};
const KeyButtons& practiceKeys();
const KeyButtons& reviewKeys();

/// The row of function keys of a screen.
class FunctionKeys final : public QWidget {
  Q_OBJECT
 public:
  /// `pressed` is called with the key and whether its button was used.
  using Pressed = std::function<void(FunctionKey key, bool byButton)>;
  FunctionKeys(const KeyButtons& keys, Pressed pressed, QWidget* parent = nullptr);

  void enableKey(FunctionKey key, bool enabled);
  /// Presses what belongs to a key of the keyboard; a key that is held presses once. False when it
  /// is none of the row's.
  bool press(const QKeyEvent& event);

 private:
  /// A row of buttons on a widget of its own.
  QBoxLayout* makeRow(const std::vector<KeyButton>& keys);
  QPushButton* makeButton(const KeyButton& key);

  Pressed m_pressed;
  std::map<FunctionKey, QPushButton*> m_buttons;
};

}  // namespace tavoli
