#pragma once

#include <QMap>

#include "practice/PracticeScreen.h"

namespace tavoli::test {

/// A practice screen that remembers what it was last told.
class RecordingScreen final : public PracticeScreen {
 public:
  void showCaption(const QString& text) override { caption = text; }
  void showSource(const QString& text) override { source = text; }
  void showQuestion(const MarkedText& text) override { question = text.text; }
  void setAnswer(const QString& text) override { answer = text; }
  void showFullAnswer(const MarkedText& text) override {
    fullAnswer = text.text;
    red = text.spans.empty() ? QString()
                             : text.text.mid(text.spans.front().offset, text.spans.front().length);
  }
  void focusAnswer() override {}
  void showMessage(const QString& text) override { message = text; }
  void showMiniTest(const MarkedText& text) override { miniTest = text.text; }
  void lookUp(const QString& text) override { lookedUp = text; }
  void enableAnswerKey(bool enabled) override { answerKey = enabled; }
  void showComparison(int choice) override { comparison = choice; }
  void showStatus(StatusPanel panel, const QString& text) override {
    panels[static_cast<int>(panel)] = text;
  }
  void awaitConfirmation(bool on) override { awaited = on; }
  void close() override { closed = true; }

  QString caption, source, question, answer, fullAnswer, red, message, miniTest, lookedUp;
  bool answerKey = true;
  int comparison = -1;
  QMap<int, QString> panels;
  bool awaited = false;
  bool closed = false;
};

}  // namespace tavoli::test
