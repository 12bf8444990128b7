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
  void showFullAnswer(const MarkedText& text) override { fullAnswer = text.text; }
  void showMessage(const QString& text) override { message = text; }
  void showStatus(StatusPanel panel, const QString& text) override {
    panels[static_cast<int>(panel)] = text;
  }
  void awaitConfirmation(bool on) override { awaited = on; }
  void close() override { closed = true; }

  QString caption, source, question, answer, fullAnswer, message;
  QMap<int, QString> panels;
  bool awaited = false;
  bool closed = false;
};

}  // namespace tavoli::test
