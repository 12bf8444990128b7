#pragma once

#include <QMap>
#include <QSet>

#include "practice/PracticeScreen.h"
#include "practice/ReviewScreen.h"

namespace tavoli::test {

/// A screen that remembers what it was last told.
template <class Screen>
class RecordingAnswers : public Screen {
 public:
  void showQuestion(const MarkedText& text) override { question = text.text; }
  void showSubQuestion(const QuestionView& shown) override { view = shown; }
  void setAnswer(const QString& text) override { answer = text; }
  void focusAnswer() override {}
  void showFullAnswer(const MarkedText& text) override {
    fullAnswer = text.text;
    red = text.spans.empty() ? QString()
                             : text.text.mid(text.spans.front().offset, text.spans.front().length);
  }
  void showMessage(const MarkedText& text) override { message = text.text; }
  void lookUp(const QString& text) override { lookedUp = text; }
  void showTime(const AnswerTime& shown) override { time = shown; }
  void awaitConfirmation(bool on) override { awaited = on; }

  QString question, answer, fullAnswer, red, message, lookedUp;
  QuestionView view;
  AnswerTime time;
  bool awaited = false;
};

class RecordingReview final : public RecordingAnswers<ReviewScreen> {
 public:
  void beginReview(const QString& course) override {
    heading = course;
    shown = true;
    ++begun;
  }
  void endReview() override { shown = false; }

  QString heading;
  int begun = 0;
  bool shown = false;
};

class RecordingScreen final : public RecordingAnswers<PracticeScreen> {
 public:
  void showCaption(const QString& text) override { caption = text; }
  void showSource(const QString& text) override { source = text; }
  void showMiniTest(const MarkedText& text) override { miniTest = text.text; }
  void enableKey(FunctionKey key, bool enabled) override {
    if (enabled)
      disabled.remove(key);
    else
      disabled.insert(key);
  }
  void showTimeUpSound(int choice) override { timeUpSound = choice; }
  void showLog(const QStringList& lines, bool shown) override {
    log = shown ? lines : QStringList();
  }
  void showCounts(const RunCounts& shown) override { counts = shown; }
  void showComparison(int choice) override { comparison = choice; }
  void showStatus(StatusPanel panel, const QString& text) override {
    panels[static_cast<int>(panel)] = text;
  }
  void close() override { closed = true; }

  QString caption, source, miniTest;
  QSet<FunctionKey> disabled;
  QStringList log;
  RunCounts counts;
  int timeUpSound = -1;
  int comparison = -1;
  QMap<int, QString> panels;
  bool closed = false;
};

}  // namespace tavoli::test
