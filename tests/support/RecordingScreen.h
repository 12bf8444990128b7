#pragma once

#include <QMap>
#include <QSet>

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
  void enableKey(FunctionKey key, bool enabled) override {
    if (enabled)
      disabled.remove(key);
    else
      disabled.insert(key);
  }
  void showTimeUpSound(int choice) override { timeUpSound = choice; }
  void showTime(const AnswerTime& shown) override { time = shown; }
  void showLog(const QStringList& lines, bool shown) override {
    log = shown ? lines : QStringList();
  }
  void showCounts(const RunCounts& shown) override { counts = shown; }
  void showComparison(int choice) override { comparison = choice; }
  void showStatus(StatusPanel panel, const QString& text) override {
    panels[static_cast<int>(panel)] = text;
  }
  void awaitConfirmation(bool on) override { awaited = on; }
  void close() override { closed = true; }

  QString caption, source, question, answer, fullAnswer, red, message, miniTest, lookedUp;
  QSet<FunctionKey> disabled;
  AnswerTime time;
  QStringList log;
  RunCounts counts;
  int timeUpSound = -1;
  int comparison = -1;
  QMap<int, QString> panels;
  bool awaited = false;
  bool closed = false;
};

}  // namespace tavoli::test
