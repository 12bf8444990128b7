// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lookup/screens/WordView.h"
#include "practice/screens/AnswerAreas.h"
#include "practice/screens/AnswerBox.h"
#include "practice/screens/MessageLine.h"
#include "practice/screens/TimeStrip.h"

namespace tavoli {

/// A window in which answers are typed, for a `Screen` that is an AnswerScreen.
template <class Screen>
class AnswerWindow : public QMainWindow, public Screen {
 public:
  /// Adds a look-up pane. The dictionary must be there as long as the window is used.
  void addLookUp(const QString& heading, LookUp& dictionary) {
    m_areas.addLookUp(heading, dictionary);
  }

  void showQuestion(const MarkedText& text) override { m_areas.question->setMarkedText(text); }
  void showSubQuestion(const QuestionView& view) override {
    if (view.question != m_areas.question->markedText())
      m_areas.question->setMarkedText(view.question);
    m_areas.answer->setHint(answerHint(view));
    m_areas.describeAnswer();
  }
  void setAnswer(const QString& text) override { m_areas.answer->setText(text); }
  void focusAnswer() override { m_areas.answer->setFocus(); }
  void showFullAnswer(const MarkedText& text) override {
    m_areas.fullAnswer->setMarkedText(text, MarkedView::Show::End);
    m_areas.describeAnswer();
  }
  void showMessage(const MarkedText& text) override {
    m_areas.message->showMarked(text);
    m_areas.describeAnswer();
  }
  void lookUp(const QString& text) override { m_areas.lookUp(text); }
  void showTime(const AnswerTime& time) override { m_areas.time->showTime(time); }
  void awaitConfirmation(bool awaited) override { m_areas.answer->awaitEnter(awaited); }

 protected:
  explicit AnswerWindow(QWidget* parent) : QMainWindow(parent), m_areas(*this) {}

  void resizeEvent(QResizeEvent* event) override {
    QMainWindow::resizeEvent(event);
    m_areas.fitHeight();
  }

  AnswerAreas m_areas;
};

}  // namespace tavoli
