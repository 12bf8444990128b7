#include "practice/screens/TAVO4.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>

#include <chrono>
#include <utility>

#include "conditions/screens/TAVO6.h"
#include "practice/PracticeLoop.h"
#include "practice/screens/AnswerBox.h"
#include "practice/screens/LookUpPane.h"
#include "practice/screens/MessageLine.h"
#include "practice/screens/ScaledFont.h"
#include "practice/screens/TextMenu.h"
#include "practice/screens/TimeStrip.h"
#include "practice/screens/WordView.h"

namespace tavoli {

TAVO4::TAVO4(PracticeConditions& conditions, QWidget* parent)
    : QMainWindow(parent), m_conditions(conditions) {
  setWindowTitle(QStringLiteral("復習"));
  setCentralWidget(new QWidget(this));
  buildAreas();
  buildAnswer();
  m_lookUps = new QSplitter(Qt::Horizontal, this);
  m_lookUps->setChildrenCollapsible(false);
  m_keys = new FunctionKeys(
      reviewKeys(), [this](FunctionKey key, bool) { pressKey(key); }, this);
  buildMenu();
  arrange();
  m_textMenu = new TextMenu(this);
  m_textMenu->serve(this);
  connect(&m_seconds, &QTimer::timeout, this, [this] {
    if (review()) review()->tick();
  });
}

TAVO4::~TAVO4() {
  // The box loses the focus when it goes, and this window is no review screen any more by then.
  m_answer->disconnect(this);
}

void TAVO4::buildAreas() {
  m_heading = new QLabel(this);
  m_heading->setObjectName(QStringLiteral("Label1"));
  m_time = new TimeStrip(this);
  m_time->setObjectName(QStringLiteral("Picture1"));
  m_question = new WordView(this);
  m_question->setObjectName(QStringLiteral("RichTextBox4"));
  m_question->setAccessibleName(QStringLiteral("問題"));
  m_question->setFont(scaled(font(), 1.5));
  m_message = new MessageLine(this);
  m_fullAnswer = new WordView(this);
  m_fullAnswer->setObjectName(QStringLiteral("RichTextBox2"));
  m_fullAnswer->setAccessibleName(QStringLiteral("正解と説明"));
  m_fullAnswer->setFont(scaled(font(), 1.3));
  for (const WordView* area : {m_question, m_fullAnswer})
    connect(area, &WordView::wordClicked, this, &TAVO4::lookUp);
}

void TAVO4::buildAnswer() {
  m_answer = new AnswerBox(this);
  m_answer->setObjectName(QStringLiteral("Text2"));
  m_answer->setAccessibleName(QStringLiteral("回答"));
  connect(m_answer, &AnswerBox::keyArrived, this, [this] {
    if (review()) review()->keyPressed();
  });
  connect(m_answer, &AnswerBox::entered, this, [this] {
    if (review()) review()->enter(m_answer->text());
  });
  connect(m_answer, &AnswerBox::clicked, this, [this] {
    if (!review()) return;
    if (review()->correcting()) m_answer->deselect();
    review()->answerBoxClicked();
  });
  connect(m_answer, &AnswerBox::left, this, [this] {
    if (review()) review()->answerBoxLeft();
  });
}

void TAVO4::buildMenu() {
  QMenu* settings = menuBar()->addMenu(QStringLiteral("設定"));
  settings->setObjectName(QStringLiteral("menuSettings"));
  settings->setAccessibleName(settings->title());
  QAction* repeats = settings->addAction(QStringLiteral("正解要求時の繰り返し入力回数"));
  repeats->setObjectName(QStringLiteral("menu1"));
  connect(repeats, &QAction::triggered, this, [this] { TAVO6(m_conditions, this).exec(); });
}

void TAVO4::arrange() {
  auto* head = new QHBoxLayout;
  head->addWidget(m_heading);
  head->addWidget(m_time, 1);
  auto* label = new QLabel(QStringLiteral("回答"), this);
  label->setObjectName(QStringLiteral("Label2"));
  label->setBuddy(m_answer);
  auto* answerRow = new QHBoxLayout;
  answerRow->addWidget(label);
  answerRow->addWidget(m_answer, 1);

  auto* rows = new QSplitter(Qt::Vertical, this);
  rows->setChildrenCollapsible(false);
  auto* asking = new QWidget(rows);
  auto* askingColumn = new QVBoxLayout(asking);
  askingColumn->setContentsMargins(0, 0, 0, 0);
  askingColumn->addWidget(m_question, 1);
  askingColumn->addLayout(answerRow);
  askingColumn->addWidget(m_message);
  rows->addWidget(m_fullAnswer);
  rows->addWidget(m_lookUps);
  rows->setStretchFactor(0, 3);
  rows->setStretchFactor(1, 4);
  rows->setStretchFactor(2, 3);

  auto* column = new QVBoxLayout(centralWidget());
  column->addLayout(head);
  column->addWidget(rows, 1);
  column->addWidget(m_keys);

  auto* hint = new QLabel(QStringLiteral("復習周期は 「 条件設定 」 画面で変更できます。"), this);
  hint->setObjectName(QStringLiteral("Label4"));
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(hint);
}

void TAVO4::addLookUp(const QString& heading, LookUp& dictionary) {
  auto* pane = new LookUpPane(static_cast<int>(m_panes.size()), heading, dictionary, m_lookUps);
  connect(pane, &LookUpPane::wordClicked, this, &TAVO4::lookUp);
  m_textMenu->serve(pane);
  m_panes.append(pane);
}

void TAVO4::connectTo(PracticeLoop& loop, std::function<void()> begun, std::function<void()> over) {
  m_loop = &loop;
  m_begun = std::move(begun);
  m_over = std::move(over);
}

ReviewDrill* TAVO4::review() const {
  return m_loop && m_loop->復習中() ? &m_loop->review() : nullptr;
}

void TAVO4::beginReview(const QString& course) {
  m_heading->setText(QStringLiteral("復習　") + course);
  m_seconds.start(std::chrono::seconds(1));
  if (m_begun) m_begun();
}

void TAVO4::endReview() {
  m_seconds.stop();
  if (m_over) m_over();
}

void TAVO4::showQuestion(const MarkedText& text) {
  m_question->setMarkedText(text);
}

void TAVO4::setAnswer(const QString& text) {
  m_answer->setText(text);
}

void TAVO4::focusAnswer() {
  m_answer->setFocus();
}

void TAVO4::showFullAnswer(const MarkedText& text) {
  m_fullAnswer->setMarkedText(text, MarkedView::Show::End);
}

void TAVO4::showMessage(const QString& text) {
  m_message->setText(text);
}

void TAVO4::lookUp(const QString& text) {
  for (LookUpPane* pane : std::as_const(m_panes)) pane->setWord(text);
}

void TAVO4::showTime(const AnswerTime& time) {
  m_time->showTime(time);
}

void TAVO4::awaitConfirmation(bool awaited) {
  m_answer->setReadOnly(awaited);
  m_answer->setPlaceholderText(awaited ? QStringLiteral("Enter キーで次に進みます。") : QString());
  m_keys->enableKey(FunctionKey::F1, !awaited);
  m_answer->setFocus();
}

void TAVO4::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (review()) review()->requestExit();
}

void TAVO4::keyPressEvent(QKeyEvent* event) {
  if (!m_keys->press(event->key())) QMainWindow::keyPressEvent(event);
}

void TAVO4::pressKey(FunctionKey key) {
  ReviewDrill* drill = review();
  if (!drill) return;
  switch (key) {
    case FunctionKey::F1:
      return drill->showAnswer();
    case FunctionKey::F6:
      return drill->requestExit();
    case FunctionKey::F11:
      return drill->nextReviewItem();
    default:
      break;
  }
}

}  // namespace tavoli
