// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "itemtext/MarkedText.h"
#include "practice/QuestionView.h"

namespace tavoli {

/// What the time strip shows.
struct AnswerTime {
  bool running = false;  ///< false: the strip is empty
  int seconds = 0;       ///< since the question was put
  double used = 0;       ///< share of the target time that has passed, 0 to 1
};

/// What a drill with typed answers asks of whatever shows it.
class AnswerScreen {
 public:
  virtual ~AnswerScreen() = default;
  virtual void showQuestion(const MarkedText& text) = 0;
  /// Which 小問 of the question is asked. It follows the question, and comes again when nothing of
  /// it is asked any more.
  virtual void showSubQuestion(const QuestionView& view) = 0;
  /// Puts a text into the answer box with the caret behind it.
  virtual void setAnswer(const QString& text) = 0;
  virtual void focusAnswer() = 0;
  /// The full answer, or what is said of a wrong answer.
  virtual void showFullAnswer(const MarkedText& text) = 0;
  virtual void showMessage(const MarkedText& text) = 0;
  /// Puts a text into the look-up boxes.
  virtual void lookUp(const QString& text) = 0;
  virtual void showTime(const AnswerTime& time) = 0;
  /// True: the full answer is on show and Enter is awaited. False: the answer box takes typing.
  virtual void awaitConfirmation(bool awaited) = 0;
};

}  // namespace tavoli
