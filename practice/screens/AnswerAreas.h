// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QLayout>
#include <QMainWindow>
#include <QSplitter>
#include <QTimer>

#include "practice/AnswerScreen.h"

namespace tavoli {

class AnswerBox;
class LookUp;
class LookUpPane;
class MessageLine;
class TextMenu;
class TimeStrip;
class WordView;

/// What every window has in which answers are typed: heading and time strip, question, answer box,
/// message, full answer, and look-up panes.
class AnswerAreas {
 public:
  /// Makes the areas as children of the window; they go with it.
  explicit AnswerAreas(QMainWindow& window);
  ~AnswerAreas();
  AnswerAreas(const AnswerAreas&) = delete;
  AnswerAreas& operator=(const AnswerAreas&) = delete;

  /// Lays the window out: the row with the question, the full answer alone or among others, and the
  /// function keys.
  void arrange(QLayout* questionRow, QWidget* explanations, QWidget* keys);

  /// Adds a look-up pane. The dictionary must be there as long as the window is used.
  void addLookUp(const QString& heading, LookUp& dictionary);
  /// Puts a text into all look-up panes, and opens them.
  void lookUp(const QString& text);
  /// A screen reader is to tell, with the answer box, what is asked and what the last entry was
  /// told. Changes that come together are told once.
  void describeAnswer() { m_describing.start(); }

  /// Shares out the window's height, which has changed. In a low window the look-up panes make room
  /// for the question until something is looked up.
  void fitHeight();
  /// The window has room for little more than question and answer.
  bool low() const;

  QLabel* const heading;
  TimeStrip* const time;
  WordView* const question;
  AnswerBox* const answer;
  MessageLine* const message;
  WordView* const fullAnswer;

 private:
  QMainWindow& m_window;
  QSplitter* m_lookUps;
  QList<LookUpPane*> m_panes;
  QSplitter* m_rows = nullptr;
  void tellAnswer();

  QTimer m_describing;
  QString m_describedQuestion;
  QString m_verdict;
  bool m_lookedUp = false;
  bool m_low = false;
  TextMenu* m_textMenu = nullptr;
};

/// A splitter whose parts cannot be closed.
QSplitter* openSplitter(Qt::Orientation orientation, QWidget* parent);
/// Adds a part; the handle in front of it is named after it for those who cannot see it.
void addPart(QSplitter* splitter, QWidget* part, const QString& name);

}  // namespace tavoli
