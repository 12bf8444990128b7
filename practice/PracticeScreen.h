// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <array>

#include "practice/AnswerScreen.h"

namespace tavoli {

/// The panels of the status line that the practice fills, numbered from 1.
enum class StatusPanel {
  Review = 1,
  Position = 2,
  Comparison = 3,
  StartTime = 4,
  RestTime = 5,
  ElapsedTime = 6,
  Times = 7,
  Order = 8
};

/// The function keys of the practice; each is a button too.
enum class FunctionKey { F1 = 1, F2 = 2, F3 = 3, F4 = 4, F6 = 6, F7 = 7, F9 = 9, F11 = 11 };

/// A function key is pressed on the keyboard or as a button.
enum class Pressed { Key, Button };

/// How many items were finished, by their level: 中学, 高校, 専門.
struct ItemCounts {
  std::array<int, 3> words{};
  std::array<int, 3> sentences{};
};

/// How many items were finished in this run and, with it, this month.
struct RunCounts {
  ItemCounts run;
  ItemCounts month;
};

/// What the practice asks of whatever shows it: a window, a terminal, a test.
class PracticeScreen : public AnswerScreen {
 public:
  virtual void showCaption(const QString& text) = 0;
  virtual void showSource(const QString& text) = 0;
  /// The notice of a mini test; an empty text hides it.
  virtual void showMiniTest(const MarkedText& text) = 0;
  virtual void enableKey(FunctionKey key, bool enabled) = 0;
  /// Marks one of comparisonChoices(), from 0, as the chosen one.
  virtual void showComparison(int choice) = 0;
  /// Marks a time-up sound as the chosen one: 0 none, 1 a beep, 2 the spoken sentence.
  virtual void showTimeUpSound(int choice) = 0;
  /// The run's log, all lines of it, and whether it is on show.
  virtual void showLog(const QStringList& runLog, bool shown) = 0;
  virtual void showCounts(const RunCounts& counts) = 0;
  virtual void showStatus(StatusPanel panel, const QString& text) = 0;
  /// The learner has confirmed the end of the run.
  virtual void close() = 0;
};

}  // namespace tavoli
