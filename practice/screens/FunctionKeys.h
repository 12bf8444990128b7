// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include <functional>
#include <map>
#include <vector>

#include "practice/DrillKeys.h"

namespace tavoli {

/// The row of function keys of a screen.
class FunctionKeys final : public QWidget {
  Q_OBJECT
 public:
  /// `used` is called with the key that was pressed.
  using Used = std::function<void(const DrillKey& key, Pressed pressed)>;
  FunctionKeys(const DrillKeys& keys, Used used, QWidget* parent = nullptr);

  void enableKey(FunctionKey key, bool enabled);
  /// Presses what belongs to a key of the keyboard; a key that is held presses once. False when it
  /// is none of the row's.
  bool press(const QKeyEvent& event);

 private:
  /// A row of buttons on a widget of its own.
  QBoxLayout* makeRow(const std::vector<DrillKey>& keys);
  QPushButton* makeButton(const DrillKey& key);

  const DrillKeys& m_keys;
  Used m_used;
  std::map<FunctionKey, QPushButton*> m_buttons;
};

}  // namespace tavoli
