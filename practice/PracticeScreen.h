#pragma once

#include <QString>

#include "data/MarkedText.h"

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

/// What the practice asks of whatever shows it: a window, a terminal, a test.
class PracticeScreen {
 public:
  virtual ~PracticeScreen() = default;
  virtual void showCaption(const QString& text) = 0;
  virtual void showSource(const QString& text) = 0;
  virtual void showQuestion(const MarkedText& text) = 0;
  /// Puts a text into the answer box with the caret behind it.
  virtual void setAnswer(const QString& text) = 0;
  virtual void focusAnswer() = 0;
  /// The full answer, or what a wrong answer is told.
  virtual void showFullAnswer(const MarkedText& text) = 0;
  virtual void showMessage(const QString& text) = 0;
  /// The notice of a mini test; an empty text hides it.
  virtual void showMiniTest(const MarkedText& text) = 0;
  /// Puts a text into the look-up boxes.
  virtual void lookUp(const QString& text) = 0;
  /// Whether F1, the answer on demand, can be used.
  virtual void enableAnswerKey(bool enabled) = 0;
  /// Marks one of comparisonChoices(), from 0, as the chosen one.
  virtual void showComparison(int choice) = 0;
  virtual void showStatus(StatusPanel panel, const QString& text) = 0;
  /// True: the full answer is on show and Enter is awaited. False: the answer box takes typing.
  virtual void awaitConfirmation(bool awaited) = 0;
  /// The learner has confirmed the end of the run.
  virtual void close() = 0;
};

}  // namespace tavoli
