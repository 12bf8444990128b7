#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QSplitter>
#include <QTimer>

#include <functional>

#include "practice/PracticeScreen.h"

namespace tavoli {

class AnswerBox;
class CountsFrame;
class FunctionKeys;
class LogView;
class LookUp;
class LookUpPane;
class MarkedView;
class MessageLine;
class PracticeLoop;
class PracticeMenus;
class StatusPanels;
class TextMenu;
class TimeStrip;
class WordView;
struct PracticeConditions;

/// The practice screen.
class TAVO3 final : public QMainWindow, public PracticeScreen {
  Q_OBJECT
 public:
  /// The learner changes the numbers of repeats in `conditions` here.
  explicit TAVO3(PracticeConditions& conditions, QWidget* parent = nullptr);
  ~TAVO3() override;

  /// Adds a look-up pane. The dictionary must be there as long as the window is used.
  void addLookUp(const QString& heading, LookUp& dictionary);

  /// Keys go to `loop` from now on, and its clock ticks. `closed` is called once, when the end of
  /// the run was confirmed.
  void connectTo(PracticeLoop& loop, std::function<void()> closed);

  void showCaption(const QString& text) override;
  void showSource(const QString& text) override;
  void showQuestion(const MarkedText& text) override;
  void setAnswer(const QString& text) override;
  void focusAnswer() override;
  void showFullAnswer(const MarkedText& text) override;
  void showMessage(const QString& text) override;
  void showMiniTest(const MarkedText& text) override;
  void lookUp(const QString& text) override;
  void enableKey(FunctionKey key, bool enabled) override;
  void showComparison(int choice) override;
  void showTimeUpSound(int choice) override;
  void showTime(const AnswerTime& time) override;
  void showLog(const QStringList& runLog, bool shown) override;
  void showCounts(const RunCounts& counts) override;
  void showStatus(StatusPanel panel, const QString& text) override;
  void awaitConfirmation(bool awaited) override;
  void close() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildAreas();
  void buildAnswer();
  void buildMenus();
  void arrange();
  /// The loop, or nothing when none is connected, its run is over, or a review has the keys.
  PracticeLoop* loop() const;
  void pressKey(FunctionKey key, bool byButton);
  void answerClicked();
  void setRepeats();

  PracticeConditions& m_conditions;
  PracticeLoop* m_loop = nullptr;
  std::function<void()> m_closed;
  QTimer m_seconds;

  QLabel* m_source;
  TimeStrip* m_time;
  WordView* m_question;
  CountsFrame* m_counts;
  AnswerBox* m_answer;
  MessageLine* m_message;
  WordView* m_fullAnswer;
  MarkedView* m_miniTest;
  LogView* m_log;
  QSplitter* m_lookUps;
  QList<LookUpPane*> m_panes;
  FunctionKeys* m_keys;
  PracticeMenus* m_menus;
  StatusPanels* m_status;
  TextMenu* m_textMenu;
};

}  // namespace tavoli
