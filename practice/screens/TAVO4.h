#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QTimer>

#include <functional>

#include "practice/ReviewScreen.h"
#include "practice/screens/FunctionKeys.h"

class QSplitter;

namespace tavoli {

class AnswerBox;
class LookUp;
class LookUpPane;
class MessageLine;
class PracticeLoop;
class ReviewDrill;
class TextMenu;
class TimeStrip;
class WordView;
struct PracticeConditions;

/// The review screen.
class TAVO4 final : public QMainWindow, public ReviewScreen {
  Q_OBJECT
 public:
  /// The learner changes the numbers of retypings in `conditions` here.
  explicit TAVO4(PracticeConditions& conditions, QWidget* parent = nullptr);
  ~TAVO4() override;

  /// Adds a look-up pane. The dictionary must be there as long as the window is used.
  void addLookUp(const QString& heading, LookUp& dictionary);

  /// Keys go to the review of `loop` from now on. `begun` is called when the window is to take the
  /// place of the practice, `over` when the practice is to come back.
  void connectTo(PracticeLoop& loop, std::function<void()> begun, std::function<void()> over);

  void beginReview(const QString& course) override;
  void endReview() override;
  void showQuestion(const MarkedText& text) override;
  void setAnswer(const QString& text) override;
  void focusAnswer() override;
  void showFullAnswer(const MarkedText& text) override;
  void showMessage(const QString& text) override;
  void lookUp(const QString& text) override;
  void showTime(const AnswerTime& time) override;
  void awaitConfirmation(bool awaited) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void buildAreas();
  void buildAnswer();
  void buildMenu();
  void arrange();
  /// The review, or nothing while none goes on.
  ReviewDrill* review() const;
  void pressKey(FunctionKey key);

  PracticeConditions& m_conditions;
  PracticeLoop* m_loop = nullptr;
  std::function<void()> m_begun;
  std::function<void()> m_over;
  QTimer m_seconds;

  QLabel* m_heading;
  TimeStrip* m_time;
  WordView* m_question;
  AnswerBox* m_answer;
  MessageLine* m_message;
  WordView* m_fullAnswer;
  QSplitter* m_lookUps;
  QList<LookUpPane*> m_panes;
  FunctionKeys* m_keys;
  TextMenu* m_textMenu;
};

}  // namespace tavoli
