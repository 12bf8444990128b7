// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/TAVO4.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QStatusBar>

#include <chrono>

#include "conditions/screens/TAVO6.h"
#include "practice/PracticeLoop.h"
#include "system/screens/WindowTitle.h"

using namespace Qt::StringLiterals;

namespace tavoli {

TAVO4::TAVO4(QWidget* parent) : AnswerWindow(parent) {
  setWindowTitle(tavoli::windowTitle(u"復習"_s));
  connectAnswer();
  m_keys = new FunctionKeys(
      reviewKeys(),
      [this](const DrillKey& key, Pressed pressed) {
        if (review()) key.press(*m_loop, pressed);
      },
      this);
  buildMenu();
  auto* questionRow = new QHBoxLayout;
  questionRow->addWidget(m_areas.question, 1);
  m_areas.arrange(questionRow, m_areas.fullAnswer, m_keys);
  auto* hint = new QLabel(u"復習周期は 「 条件設定 」 画面で変更できます。"_s, this);
  hint->setObjectName(u"Label4"_s);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(hint);
  connect(&m_seconds, &QTimer::timeout, this, [this] {
    if (review()) review()->tick();
  });
}

void TAVO4::connectAnswer() {
  const AnswerBox* answer = m_areas.answer;
  connect(answer, &AnswerBox::keyArrived, this, [this] {
    if (review()) review()->keyPressed();
  });
  connect(answer, &AnswerBox::entered, this, [this] {
    if (review()) review()->enter(m_areas.answer->text());
  });
  connect(answer, &AnswerBox::clicked, this, [this] {
    if (!review()) return;
    if (review()->correcting()) m_areas.answer->deselect();
    review()->answerBoxClicked();
  });
  connect(answer, &AnswerBox::left, this, [this] {
    if (review()) review()->answerBoxLeft();
  });
}

void TAVO4::buildMenu() {
  QMenu* settings = menuBar()->addMenu(u"設定"_s);
  settings->setObjectName(u"menuSettings"_s);
  settings->setAccessibleName(settings->title());
  QAction* repeats = settings->addAction(u"正解要求時の繰り返し入力回数"_s);
  repeats->setObjectName(u"menu1"_s);
  connect(repeats, &QAction::triggered, this, &TAVO4::setRepeats);
}

ReviewDrill* TAVO4::review() const {
  return m_loop && m_loop->復習中() ? &m_loop->review() : nullptr;
}

void TAVO4::beginReview(const QString& course) {
  m_areas.heading->setText(u"復習　"_s + course);
  m_seconds.start(std::chrono::seconds(1));
  Q_EMIT begun();
}

void TAVO4::endReview() {
  m_seconds.stop();
  Q_EMIT over();
}

void TAVO4::awaitConfirmation(bool awaited) {
  AnswerWindow::awaitConfirmation(awaited);
  m_keys->enableKey(FunctionKey::F1, !awaited);
  focusAnswer();
}

void TAVO4::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (review()) review()->requestExit();
}

void TAVO4::keyPressEvent(QKeyEvent* event) {
  if (!m_keys->press(*event)) QMainWindow::keyPressEvent(event);
}

void TAVO4::setRepeats() {
  if (!m_loop) return;
  PracticeConditions chosen = m_loop->conditions();
  TAVO6(chosen, this).exec();
  m_loop->chooseRepeats(chosen);
}

}  // namespace tavoli
