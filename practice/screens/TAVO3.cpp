#include "practice/screens/TAVO3.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLayout>
#include <QStatusBar>

#include "practice/PracticeLoop.h"

namespace tavoli {

namespace {

QFont scaled(QFont font, double factor) {
  font.setPointSizeF(font.pointSizeF() * factor);
  return font;
}

QFont answerFont(const QFont& like) {
  QFont font(QStringList{QStringLiteral("ＭＳ ゴシック"), QStringLiteral("IPAGothic"),
                         QStringLiteral("monospace")});
  font.setStyleHint(QFont::Monospace);
  font.setPointSizeF(like.pointSizeF());
  return font;
}

}  // namespace

TAVO3::TAVO3(QWidget* parent) : QMainWindow(parent) {
  auto* centre = new QWidget(this);
  buildFields(centre);
  setCentralWidget(centre);
  buildStatus();
  setMinimumSize(640, 480);
}

void TAVO3::buildFields(QWidget* centre) {
  m_source = new QLabel(centre);
  m_source->setObjectName(QStringLiteral("Label1"));
  m_question = new MarkedView(centre);
  m_question->setObjectName(QStringLiteral("RichTextBox4"));
  m_question->setAccessibleName(QStringLiteral("問題"));
  m_question->setFont(scaled(font(), 1.5));
  m_question->setFocusPolicy(Qt::NoFocus);

  auto* label = new QLabel(QStringLiteral("回答"), centre);
  m_answer = new QLineEdit(centre);
  m_answer->setObjectName(QStringLiteral("Text2"));
  m_answer->setAccessibleName(QStringLiteral("回答"));
  m_answer->setFont(answerFont(scaled(font(), 1.5)));
  m_answer->setAttribute(Qt::WA_InputMethodEnabled, false);
  m_answer->installEventFilter(this);
  label->setBuddy(m_answer);

  m_message = new QLabel(centre);
  m_message->setObjectName(QStringLiteral("RichTextBox5"));
  m_message->setTextFormat(Qt::PlainText);
  m_message->setWordWrap(true);
  m_message->setFont(scaled(font(), 1.2));
  m_message->setMinimumHeight(m_message->fontMetrics().height() * 2);

  m_fullAnswer = new MarkedView(centre);
  m_fullAnswer->setObjectName(QStringLiteral("RichTextBox2"));
  m_fullAnswer->setAccessibleName(QStringLiteral("正解と説明"));
  m_fullAnswer->setFont(scaled(font(), 1.3));
  m_fullAnswer->installEventFilter(this);

  m_end = new QPushButton(QStringLiteral("終了 F6"), centre);
  m_end->setObjectName(QStringLiteral("Command1(5)"));
  m_end->setFocusPolicy(Qt::NoFocus);
  connect(m_end, &QPushButton::clicked, this, [this] {
    if (m_loop) m_loop->requestExit();
  });

  auto* answerRow = new QHBoxLayout;
  answerRow->addWidget(label);
  answerRow->addWidget(m_answer, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(m_end);
  auto* column = new QVBoxLayout(centre);
  column->addWidget(m_source);
  column->addWidget(m_question, 3);
  column->addLayout(answerRow);
  column->addWidget(m_message);
  column->addWidget(m_fullAnswer, 4);
  column->addLayout(buttons);
}

void TAVO3::buildStatus() {
  for (int i = 0; i < panelCount; ++i) {
    auto* panel = new QLabel(this);
    panel->setObjectName(QStringLiteral("StatusBar1.Panel%1").arg(i + 1));
    panel->hide();
    statusBar()->addWidget(panel);
    m_panels[static_cast<size_t>(i)] = panel;
  }
}

void TAVO3::connectTo(PracticeLoop& loop, std::function<void()> closed) {
  m_loop = &loop;
  m_closed = std::move(closed);
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
  m_answer->setFocus();
}

void TAVO3::showFullAnswer(const MarkedText& text) {
  m_fullAnswer->setMarkedText(text, MarkedView::Show::End);
}

void TAVO3::showMessage(const QString& text) {
  m_message->setText(text);
}

void TAVO3::showStatus(StatusPanel panel, const QString& text) {
  QLabel* label = m_panels[static_cast<size_t>(panel) - 1];
  label->setText(text);
  label->setVisible(!text.isEmpty());
}

void TAVO3::awaitConfirmation(bool awaited) {
  m_answer->setReadOnly(awaited);
  if (awaited)
    m_fullAnswer->setFocus();
  else
    m_answer->setFocus();
}

void TAVO3::close() {
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
  if (m_loop && !m_loop->exitConfirmed()) m_loop->requestExit();
}

void TAVO3::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F6 && m_loop)
    m_loop->requestExit();
  else
    QMainWindow::keyPressEvent(event);
}

bool TAVO3::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QMainWindow::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    pressEnter();
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void TAVO3::pressEnter() {
  if (m_loop && !m_loop->exitConfirmed()) m_loop->enter(m_answer->text());
}

}  // namespace tavoli
