#include "practice/screens/TAVO3.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QStatusBar>

#include <chrono>
#include <utility>

#include "conditions/screens/TAVO5.h"
#include "practice/PracticeLoop.h"
#include "practice/screens/AnswerBox.h"
#include "practice/screens/CountsFrame.h"
#include "practice/screens/FunctionKeys.h"
#include "practice/screens/LogView.h"
#include "practice/screens/LookUpPane.h"
#include "practice/screens/MessageLine.h"
#include "practice/screens/PracticeMenus.h"
#include "practice/screens/ScaledFont.h"
#include "practice/screens/StatusPanels.h"
#include "practice/screens/TextMenu.h"
#include "practice/screens/TimeStrip.h"
#include "practice/screens/WordView.h"

namespace tavoli {

namespace {

QSplitter* splitter(Qt::Orientation orientation, QWidget* parent) {
  auto* made = new QSplitter(orientation, parent);
  made->setChildrenCollapsible(false);
  return made;
}

}  // namespace

TAVO3::TAVO3(PracticeConditions& conditions, QWidget* parent)
    : QMainWindow(parent), m_conditions(conditions) {
  setCentralWidget(new QWidget(this));
  buildAreas();
  buildAnswer();
  m_lookUps = splitter(Qt::Horizontal, this);
  m_keys = new FunctionKeys(
      practiceKeys(), [this](FunctionKey key, bool byButton) { pressKey(key, byButton); }, this);
  m_status = new StatusPanels(
      [this] {
        if (loop()) loop()->nextComparison();
      },
      this);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(m_status, 1);
  buildMenus();
  arrange();
  m_textMenu = new TextMenu(this);
  m_textMenu->serve(this);
  connect(&m_seconds, &QTimer::timeout, this, [this] {
    if (loop()) loop()->tick();
  });
}

void TAVO3::buildAreas() {
  m_source = new QLabel(this);
  m_source->setObjectName(QStringLiteral("Label1"));
  m_time = new TimeStrip(this);
  m_time->setObjectName(QStringLiteral("Picture1"));
  m_question = new WordView(this);
  m_question->setObjectName(QStringLiteral("RichTextBox4"));
  m_question->setAccessibleName(QStringLiteral("問題"));
  m_question->setFont(scaled(font(), 1.5));
  m_counts = new CountsFrame(this);
  m_counts->setObjectName(QStringLiteral("Frame1"));
  m_counts->hide();

  m_answer = new AnswerBox(this);
  m_message = new MessageLine(this);

  m_fullAnswer = new WordView(this);
  m_fullAnswer->setObjectName(QStringLiteral("RichTextBox2"));
  m_fullAnswer->setAccessibleName(QStringLiteral("正解と説明"));
  m_fullAnswer->setFont(scaled(font(), 1.3));
  m_fullAnswer->installEventFilter(this);
  m_miniTest = new MarkedView(this);
  m_miniTest->setObjectName(QStringLiteral("RichTextBox6"));
  m_miniTest->setAccessibleName(QStringLiteral("小試験"));
  m_miniTest->hide();
  m_log = new LogView(this);
  for (const WordView* area : {m_question, m_fullAnswer})
    connect(area, &WordView::wordClicked, this, &TAVO3::lookUp);
  connect(m_log, &LogView::wordClicked, this, &TAVO3::lookUp);
}

void TAVO3::buildAnswer() {
  m_answer->setObjectName(QStringLiteral("Text2"));
  m_answer->setAccessibleName(QStringLiteral("回答"));
  connect(m_answer, &AnswerBox::keyArrived, this, [this] {
    if (loop()) loop()->keyPressed();
  });
  connect(m_answer, &AnswerBox::entered, this, [this] {
    if (loop()) loop()->enter(m_answer->text());
  });
  connect(m_answer, &AnswerBox::clicked, this, &TAVO3::answerClicked);
  connect(m_answer, &AnswerBox::left, this, [this] {
    if (loop()) loop()->answerBoxLeft();
  });
}

void TAVO3::buildMenus() {
  m_menus = new PracticeMenus(*menuBar());
  connect(m_menus, &PracticeMenus::repeatsWanted, this, &TAVO3::setRepeats);
  connect(m_menus, &PracticeMenus::reshuffleWanted, this, [this] {
    if (loop()) loop()->reshuffle();
  });
  connect(m_menus, &PracticeMenus::logToggled, this, [this] {
    if (loop()) loop()->toggleLog();
  });
  connect(m_menus, &PracticeMenus::countsToggled, m_counts, &QWidget::setVisible);
  connect(m_menus, &PracticeMenus::comparisonChosen, this, [this](int choice) {
    if (loop()) loop()->chooseComparison(choice);
  });
  connect(m_menus, &PracticeMenus::timeUpSoundChosen, this, [this](int choice) {
    if (loop()) loop()->chooseTimeUpSound(choice);
  });
}

void TAVO3::arrange() {
  auto* head = new QHBoxLayout;
  head->addWidget(m_source);
  head->addWidget(m_time, 1);
  auto* questionRow = new QHBoxLayout;
  questionRow->addWidget(m_question, 1);
  questionRow->addWidget(m_counts, 0, Qt::AlignTop);
  auto* label = new QLabel(QStringLiteral("回答"), this);
  label->setObjectName(QStringLiteral("Label2"));
  label->setBuddy(m_answer);
  auto* answerRow = new QHBoxLayout;
  answerRow->addWidget(label);
  answerRow->addWidget(m_answer, 1);

  auto* rows = splitter(Qt::Vertical, this);
  auto* asking = new QWidget(rows);
  auto* askingColumn = new QVBoxLayout(asking);
  askingColumn->setContentsMargins(0, 0, 0, 0);
  askingColumn->addLayout(questionRow, 1);
  askingColumn->addLayout(answerRow);
  askingColumn->addWidget(m_message);
  auto* explanations = splitter(Qt::Horizontal, rows);
  for (QWidget* area : std::initializer_list<QWidget*>{m_fullAnswer, m_miniTest, m_log}) {
    explanations->addWidget(area);
    explanations->setStretchFactor(explanations->indexOf(area), 1);
  }
  rows->addWidget(m_lookUps);
  rows->setStretchFactor(0, 3);
  rows->setStretchFactor(1, 4);
  rows->setStretchFactor(2, 3);

  auto* column = new QVBoxLayout(centralWidget());
  column->addLayout(head);
  column->addWidget(rows, 1);
  column->addWidget(m_keys);
}

void TAVO3::addLookUp(const QString& heading, LookUp& dictionary) {
  auto* pane = new LookUpPane(static_cast<int>(m_panes.size()), heading, dictionary, m_lookUps);
  connect(pane, &LookUpPane::wordClicked, this, &TAVO3::lookUp);
  m_textMenu->serve(pane);
  m_panes.append(pane);
}

TAVO3::~TAVO3() {
  // The box loses the focus when it goes, and this window is no practice screen any more by then.
  m_answer->disconnect(this);
}

void TAVO3::connectTo(PracticeLoop& loop, std::function<void()> closed) {
  m_loop = &loop;
  m_closed = std::move(closed);
  m_seconds.start(std::chrono::seconds(1));
}

PracticeLoop* TAVO3::loop() const {
  return m_loop && !m_loop->exitConfirmed() && !m_loop->復習中() ? m_loop : nullptr;
}

void TAVO3::showCaption(const QString& text) {
  setWindowTitle(text + QStringLiteral(" - Tavoli"));
}

void TAVO3::showSource(const QString& text) {
  m_source->setText(text);
}

void TAVO3::showQuestion(const MarkedText& text) {
  m_question->setMarkedText(text);
}

void TAVO3::setAnswer(const QString& text) {
  m_answer->setText(text);
}

void TAVO3::focusAnswer() {
  m_answer->setFocus();
}

void TAVO3::showFullAnswer(const MarkedText& text) {
  m_fullAnswer->setMarkedText(text, MarkedView::Show::End);
}

void TAVO3::showMessage(const QString& text) {
  m_message->setText(text);
}

void TAVO3::showMiniTest(const MarkedText& text) {
  m_miniTest->setMarkedText(text);
  m_miniTest->setVisible(!text.text.isEmpty());
}

void TAVO3::lookUp(const QString& text) {
  for (LookUpPane* pane : std::as_const(m_panes)) pane->setWord(text);
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

void TAVO3::showTime(const AnswerTime& time) {
  m_time->showTime(time);
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
  m_answer->setReadOnly(awaited);
  m_answer->setPlaceholderText(awaited ? QStringLiteral("Enter キーで次に進みます。") : QString());
  // While an answer is typed, a click on a word of the area leaves the caret in the answer box.
  m_fullAnswer->setFocusPolicy(awaited ? Qt::StrongFocus : Qt::TabFocus);
  if (awaited)
    m_fullAnswer->setFocus();
  else
    m_answer->setFocus();
}

void TAVO3::close() {
  m_seconds.stop();
  // Whoever asked for the end may still be at work with this window.
  QMetaObject::invokeMethod(
      this,
      [this] {
        hide();
        if (m_closed) std::exchange(m_closed, nullptr)();
      },
      Qt::QueuedConnection);
}

void TAVO3::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (loop()) loop()->requestExit();
}

void TAVO3::pressKey(FunctionKey key, bool byButton) {
  PracticeLoop* drill = loop();
  if (!drill) return;
  switch (key) {
    case FunctionKey::F1:
      return drill->showAnswer();
    case FunctionKey::F2:
      return drill->nextSubQuestion();
    case FunctionKey::F3:
      return drill->nextItem();
    case FunctionKey::F4:
      return drill->previousItem();
    case FunctionKey::F6:
      return drill->requestExit();
    case FunctionKey::F7:
      return drill->requestLessonChange();
    case FunctionKey::F9:
      return drill->requestPrint();
    case FunctionKey::F11:
      return drill->markKnown(byButton);
  }
}

void TAVO3::keyPressEvent(QKeyEvent* event) {
  if (!m_keys->press(event->key())) QMainWindow::keyPressEvent(event);
}

bool TAVO3::eventFilter(QObject* watched, QEvent* event) {
  if (watched != m_fullAnswer || event->type() != QEvent::KeyPress)
    return QMainWindow::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool confirming = loop() && loop()->確認中();
  if (confirming && (key == Qt::Key_Up || key == Qt::Key_Down)) return true;
  if (key != Qt::Key_Return && key != Qt::Key_Enter)
    return QMainWindow::eventFilter(watched, event);
  if (confirming)
    loop()->enter(QString());
  else
    m_answer->setFocus();
  return true;
}

void TAVO3::answerClicked() {
  if (!loop()) return;
  if (loop()->correcting()) m_answer->deselect();
  loop()->answerBoxClicked(m_answer->text());
}

void TAVO3::setRepeats() {
  TAVO5(m_conditions, this).exec();
}

}  // namespace tavoli
