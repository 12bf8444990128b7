#pragma once

#include <QAction>
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
  /// `dictionaries` are the names of the course's dictionaries, one look-up box each.
  explicit TAVO3(const QStringList& dictionaries, QWidget* parent = nullptr);

  /// Keys go to `loop` from now on. `closed` is called once, when the end of the run was confirmed.
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
  void enableAnswerKey(bool enabled) override;
  void showComparison(int choice) override;
  void showStatus(StatusPanel panel, const QString& text) override;
  void awaitConfirmation(bool awaited) override;
  void close() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr int panelCount = 8;

  void buildAnswer();
  void buildAreas();
  void buildButtons();
  void buildLookUp(const QStringList& dictionaries);
  void buildMenus();
  void buildStatus();
  void arrange();
  QPushButton* button(int index, const QString& caption, const QString& tip,
                      std::function<void(PracticeLoop&)> pressed);
  /// Passes a key on to the loop; false when the key is none of the drill's.
  bool functionKey(int key);
  bool answerKeyPressed(QLineEdit* box, const QKeyEvent& event);
  void pressEnter();

  PracticeLoop* m_loop = nullptr;
  std::function<void()> m_closed;
  QLabel* m_source;
  MarkedView* m_question;
  QLineEdit* m_answer;
  MarkedView* m_fullAnswer;
  MarkedView* m_miniTest;
  QLabel* m_message;
  QWidget* m_lookUpRow;
  QList<QLineEdit*> m_lookUps;
  QList<QPushButton*> m_buttons;
  QPushButton* m_answerButton;
  QList<QAction*> m_comparisons;
  std::array<QLabel*, panelCount> m_panels{};
};

}  // namespace tavoli
