#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>

#include <array>
#include <functional>

#include "practice/PracticeScreen.h"
#include "practice/screens/MarkedView.h"

namespace tavoli {

class PracticeLoop;

/// The practice screen.
class TAVO3 final : public QMainWindow, public PracticeScreen {
  Q_OBJECT
 public:
  explicit TAVO3(QWidget* parent = nullptr);

  /// Keys go to `loop` from now on. `closed` is called once, when the end of the run was confirmed.
  void connectTo(PracticeLoop& loop, std::function<void()> closed);

  void showCaption(const QString& text) override;
  void showSource(const QString& text) override;
  void showQuestion(const MarkedText& text) override;
  void setAnswer(const QString& text) override;
  void showFullAnswer(const MarkedText& text) override;
  void showMessage(const QString& text) override;
  void showStatus(StatusPanel panel, const QString& text) override;
  void awaitConfirmation(bool awaited) override;
  void close() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr int panelCount = 8;

  void buildFields(QWidget* centre);
  void buildStatus();
  void pressEnter();

  PracticeLoop* m_loop = nullptr;
  std::function<void()> m_closed;
  QLabel* m_source;
  MarkedView* m_question;
  QLineEdit* m_answer;
  MarkedView* m_fullAnswer;
  QLabel* m_message;
  QPushButton* m_end;
  std::array<QLabel*, panelCount> m_panels{};
};

}  // namespace tavoli
