// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "practice/PracticeScreen.h"

namespace tavoli {

class PracticeLoop;

// What the learner can press besides typing answers: one list for windows and terminal.

/// A function key, which is a button too.
struct DrillKey {
  FunctionKey key;
  int index;        ///< of its button among the window's
  QString name;     ///< what it does, in a word
  QString caption;  ///< of the button
  QString tip;
  std::function<void(PracticeLoop& loop, Pressed pressed)> press;
};

/// The keys of a screen in the order of their row; those of `right` stand apart.
struct DrillKeys {
  std::vector<DrillKey> left, right;

  /// The key with that number on the keyboard; nothing where the screen has none.
  const DrillKey* find(FunctionKey key) const;
  /// All of them by their number.
  std::vector<DrillKey> inOrder() const;
};
const DrillKeys& practiceKeys();
/// The keys of the review, which belongs to a loop.
const DrillKeys& reviewKeys();

/// An entry of the practice's menus.
struct MenuCommand {
  QString name;  ///< of its control
  QString caption;
  std::function<void(PracticeLoop& loop)> press;
};

/// The entries that stand for themselves.
const MenuCommand& reshuffleCommand();
const MenuCommand& logCommand();
/// The choices, of which one is marked: how answers are compared, and what sounds at time-up.
const std::vector<MenuCommand>& comparisonCommands();
const std::vector<MenuCommand>& timeUpCommands();

}  // namespace tavoli
