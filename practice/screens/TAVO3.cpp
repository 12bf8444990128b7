// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/TAVO3.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QStatusBar>

#include <chrono>
#include <utility>

#include "conditions/screens/TAVO5.h"
#include "practice/PracticeLoop.h"
#include "practice/screens/CountsFrame.h"
#include "practice/screens/FunctionKeys.h"
#include "practice/screens/LogView.h"
#include "practice/screens/PracticeMenus.h"
#include "practice/screens/StatusPanels.h"
#include "system/Clock.h"
#include "system/screens/WindowTitle.h"

using namespace Qt::StringLiterals;

namespace tavoli {

TAVO3::TAVO3(QWidget* parent) : AnswerWindow(parent) {
  buildAreas();
  connectAnswer();
  m_keys = new FunctionKeys(
      practiceKeys(), [this](const DrillKey& key, Pressed pressed) { pressKey(key, pressed); },
      this);
  m_status = new StatusPanels(
      [this] {
        if (loop()) loop()->nextComparison();
      },
      this);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(m_status, 1);
  buildMenus();
  arrange();
  connect(&m_seconds, &QTimer::timeout, this, [this] {
    if (loop()) loop()->tick();
  });
}

void TAVO3::buildAreas() {
  m_counts = new CountsFrame(this);
  m_counts->setObjectName(u"Frame1"_s);
  m_counts->hide();
  m_miniTest = new MarkedView(this);
  m_miniTest->setObjectName(u"RichTextBox6"_s);
  m_miniTest->setAccessibleName(u"小試験"_s);
  m_miniTest->hide();
  m_log = new LogView(this);
  connect(m_log, &LogView::wordClicked, this, &TAVO3::lookUp);
  m_areas.fullAnswer->installEventFilter(this);
}

void TAVO3::connectAnswer() {
  const AnswerBox* answer = m_areas.answer;
  connect(answer, &AnswerBox::keyArrived, this, [this] {
    if (loop()) loop()->keyPressed();
  });
  connect(answer, &AnswerBox::entered, this, [this] {
    if (loop()) loop()->enter(m_areas.answer->text());
  });
  connect(answer, &AnswerBox::clicked, this, &TAVO3::answerClicked);
  connect(answer, &AnswerBox::left, this, [this] {
    if (loop()) loop()->answerBoxLeft();
  });
}

void TAVO3::buildMenus() {
  m_menus = new PracticeMenus(*menuBar());
  connect(m_menus, &PracticeMenus::repeatsWanted, this, &TAVO3::setRepeats);
  connect(m_menus, &PracticeMenus::chosen, this, [this](const MenuCommand& command) {
    if (loop()) command.press(*loop());
  });
  connect(m_menus, &PracticeMenus::countsToggled, m_counts, &QWidget::setVisible);
}

void TAVO3::arrange() {
  auto* questionRow = new QHBoxLayout;
  questionRow->addWidget(m_areas.question, 1);
  questionRow->addWidget(m_counts);
  auto* explanations = openSplitter(Qt::Horizontal, this);
  addPart(explanations, m_areas.fullAnswer, m_areas.fullAnswer->accessibleName());
  addPart(explanations, m_miniTest, m_miniTest->accessibleName());
  addPart(explanations, m_log, u"練習経過"_s);
  for (int i = 0; i < explanations->count(); ++i) explanations->setStretchFactor(i, 1);
  m_areas.arrange(questionRow, explanations, m_keys);
}

void TAVO3::connectTo(PracticeLoop& loop, const Clock& clock) {
  m_loop = &loop;
  m_clock = &clock;
  m_seconds.start(std::chrono::seconds(1));
}

void TAVO3::resumeFromReview() {
  m_reviewEnd = m_clock->milliseconds();
}

bool TAVO3::justReviewed() const {
  constexpr qint64 deafMilliseconds = 700;
  return m_reviewEnd && m_clock->milliseconds() - *m_reviewEnd < deafMilliseconds;
}

PracticeLoop* TAVO3::loop() const {
  return m_loop && !m_loop->exitConfirmed() && !m_loop->復習中() ? m_loop : nullptr;
}

void TAVO3::showCaption(const QString& text) {
  setWindowTitle(tavoli::windowTitle(text));
}

void TAVO3::showSource(const QString& text) {
  m_areas.heading->setText(text);
}

void TAVO3::showMiniTest(const MarkedText& text) {
  m_miniTest->setMarkedText(text);
  m_miniTest->setVisible(!text.text.isEmpty());
}

void TAVO3::enableKey(FunctionKey key, bool enabled) {
  m_keys->enableKey(key, enabled);
}

void TAVO3::showComparison(int choice) {
  m_menus->checkComparison(choice);
}

void TAVO3::showTimeUpSound(int choice) {
  m_menus->checkTimeUpSound(choice);
}

void TAVO3::showLog(const QStringList& runLog, bool shown) {
  m_log->showLog(runLog, shown);
  m_menus->checkLog(shown);
}

void TAVO3::showCounts(const RunCounts& counts) {
  m_counts->showCounts(counts);
}

void TAVO3::showStatus(StatusPanel panel, const QString& text) {
  m_status->showStatus(panel, text);
}

void TAVO3::awaitConfirmation(bool awaited) {
  AnswerWindow::awaitConfirmation(awaited);
  // While an answer is typed, a click on a word of the area leaves the caret in the answer box.
  m_areas.fullAnswer->setFocusPolicy(awaited ? Qt::StrongFocus : Qt::TabFocus);
  if (awaited)
    m_areas.fullAnswer->setFocus();
  else
    m_areas.answer->setFocus();
}

void TAVO3::close() {
  m_seconds.stop();
  // Whoever asked for the end may still be at work with this window.
  QMetaObject::invokeMethod(
      this,
      [this] {
        hide();
        Q_EMIT closed();
      },
      Qt::QueuedConnection);
}

void TAVO3::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (loop()) loop()->requestExit();
}

void TAVO3::resizeEvent(QResizeEvent* event) {
  AnswerWindow::resizeEvent(event);
  m_counts->setLow(m_areas.low());
}

void TAVO3::pressKey(const DrillKey& key, Pressed pressed) {
  if (key.key == FunctionKey::F11 && justReviewed()) return;
  if (loop()) key.press(*loop(), pressed);
}

void TAVO3::keyPressEvent(QKeyEvent* event) {
  if (!m_keys->press(*event)) QMainWindow::keyPressEvent(event);
}

bool TAVO3::eventFilter(QObject* watched, QEvent* event) {
  if (watched != m_areas.fullAnswer || event->type() != QEvent::KeyPress)
    return QMainWindow::eventFilter(watched, event);
  const auto* pressed = static_cast<QKeyEvent*>(event);
  const int key = pressed->key();
  const bool confirming = loop() && loop()->確認中();
  if (confirming && (key == Qt::Key_Up || key == Qt::Key_Down)) return true;
  if (key != Qt::Key_Return && key != Qt::Key_Enter)
    return QMainWindow::eventFilter(watched, event);
  if (pressed->isAutoRepeat()) return true;
  if (confirming)
    loop()->enter(QString());
  else
    m_areas.answer->setFocus();
  return true;
}

void TAVO3::answerClicked() {
  if (!loop()) return;
  if (loop()->correcting()) m_areas.answer->deselect();
  loop()->answerBoxClicked(m_areas.answer->text());
}

void TAVO3::setRepeats() {
  if (!loop()) return;
  PracticeConditions chosen = loop()->conditions();
  TAVO5(chosen, this).exec();
  if (loop()) loop()->chooseRepeats(chosen);
}

}  // namespace tavoli
