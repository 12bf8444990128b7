#include "practice/screens/TAVO3.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QStatusBar>

#include "practice/PracticeLoop.h"

namespace tavoli {

namespace {

QFont scaled(QFont font, double factor) {
  font.setPointSizeF(font.pointSizeF() * factor);
  return font;
}

/// Fixed pitch, so that a missing blank shows.
QFont answerFont(const QFont& like) {
  QFont font(QStringList{QStringLiteral("ＭＳ ゴシック"), QStringLiteral("IPAGothic"),
                         QStringLiteral("monospace")});
  font.setStyleHint(QFont::Monospace);
  font.setPointSizeF(like.pointSizeF());
  return font;
}

/// The keys that type "～" in English: the one that gives "~", and Shift with 0.
bool isWaveKey(const QKeyEvent& event) {
  constexpr quint32 scanCodeOf0 = 19;  // of X11 and Wayland, whatever Shift makes of the key
  const bool shift0 = event.modifiers().testFlag(Qt::ShiftModifier) &&
                      (event.key() == Qt::Key_0 || event.nativeScanCode() == scanCodeOf0);
  return shift0 || event.text() == u"~";
}

}  // namespace

TAVO3::TAVO3(const QStringList& dictionaries, QWidget* parent) : QMainWindow(parent) {
  setCentralWidget(new QWidget(this));
  buildAreas();
  buildAnswer();
  buildButtons();
  buildLookUp(dictionaries);
  buildMenus();
  buildStatus();
  arrange();
  setMinimumSize(640, 480);
}

void TAVO3::buildAreas() {
  m_source = new QLabel(this);
  m_source->setObjectName(QStringLiteral("Label1"));
  m_question = new MarkedView(this);
  m_question->setObjectName(QStringLiteral("RichTextBox4"));
  m_question->setAccessibleName(QStringLiteral("問題"));
  m_question->setFont(scaled(font(), 1.5));
  m_question->setFocusPolicy(Qt::NoFocus);

  m_message = new QLabel(this);
  m_message->setObjectName(QStringLiteral("RichTextBox5"));
  m_message->setTextFormat(Qt::PlainText);
  m_message->setWordWrap(true);
  m_message->setFont(scaled(font(), 1.2));
  m_message->setMinimumHeight(m_message->fontMetrics().height() * 2);
  m_message->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  m_fullAnswer = new MarkedView(this);
  m_fullAnswer->setObjectName(QStringLiteral("RichTextBox2"));
  m_fullAnswer->setAccessibleName(QStringLiteral("正解と説明"));
  m_fullAnswer->setFont(scaled(font(), 1.3));
  m_fullAnswer->installEventFilter(this);

  m_miniTest = new MarkedView(this);
  m_miniTest->setObjectName(QStringLiteral("RichTextBox6"));
  m_miniTest->setAccessibleName(QStringLiteral("小試験"));
  m_miniTest->setFocusPolicy(Qt::NoFocus);
  m_miniTest->hide();
}

void TAVO3::buildAnswer() {
  m_answer = new QLineEdit(this);
  m_answer->setObjectName(QStringLiteral("Text2"));
  m_answer->setAccessibleName(QStringLiteral("回答"));
  m_answer->setFont(answerFont(scaled(font(), 1.5)));
  m_answer->setAttribute(Qt::WA_InputMethodEnabled, false);
  m_answer->installEventFilter(this);
}

QPushButton* TAVO3::button(int index, const QString& caption, const QString& tip,
                           std::function<void(PracticeLoop&)> pressed) {
  auto* made = new QPushButton(caption, this);
  made->setObjectName(QStringLiteral("Command1(%1)").arg(index));
  made->setToolTip(tip);
  made->setFocusPolicy(Qt::NoFocus);
  connect(made, &QPushButton::clicked, this, [this, pressed = std::move(pressed)] {
    if (m_loop) pressed(*m_loop);
  });
  m_buttons.append(made);
  return made;
}

void TAVO3::buildButtons() {
  m_answerButton = button(0, QStringLiteral("正解F1(&Z)"),
                          QStringLiteral("F1 ｷｰ又は Ａlt ｷｰ ＋ Z ｷｰで正解を表示します。"),
                          [](PracticeLoop& loop) { loop.showAnswer(); });
  button(10, QStringLiteral("知っているF11(&L)"), QString(),
         [](PracticeLoop& loop) { loop.markKnown(true); });
  button(5, QStringLiteral("終了 F6"), QString(), [](PracticeLoop& loop) { loop.requestExit(); });
}

void TAVO3::buildLookUp(const QStringList& dictionaries) {
  m_lookUpRow = new QWidget(this);
  auto* row = new QHBoxLayout(m_lookUpRow);
  row->setContentsMargins(0, 0, 0, 0);
  for (const QString& name : dictionaries) {
    auto* heading = new QLabel(name, m_lookUpRow);
    auto* box = new QLineEdit(m_lookUpRow);
    const auto index = m_lookUps.size();
    heading->setObjectName(QStringLiteral("Label3(%1)").arg(index));
    box->setObjectName(QStringLiteral("Text3(%1)").arg(index));
    box->setAccessibleName(name);
    box->setAttribute(Qt::WA_InputMethodEnabled, false);
    box->installEventFilter(this);
    heading->setBuddy(box);
    row->addWidget(heading);
    row->addWidget(box, 1);
    m_lookUps.append(box);
  }
}

void TAVO3::buildMenus() {
  QAction* reshuffle = menuBar()->addAction(QStringLiteral("順不同出題"));
  reshuffle->setObjectName(QStringLiteral("menu2"));
  connect(reshuffle, &QAction::triggered, this, [this] {
    if (m_loop) m_loop->reshuffle();
  });
  QMenu* menu = menuBar()->addMenu(QStringLiteral("比較方法"));
  auto* group = new QActionGroup(this);
  for (const ComparisonChoice& choice : comparisonChoices()) {
    QAction* action = menu->addAction(choice.caption);
    const auto index = static_cast<int>(m_comparisons.size());
    action->setObjectName(QStringLiteral("menu4%1").arg(index + 1));
    action->setCheckable(true);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, index] {
      if (m_loop) m_loop->chooseComparison(index);
    });
    m_comparisons.append(action);
  }
}

void TAVO3::buildStatus() {
  for (int i = 0; i < panelCount; ++i) {
    auto* panel = new QLabel(this);
    panel->setObjectName(QStringLiteral("StatusBar1.Panel%1").arg(i + 1));
    panel->hide();
    statusBar()->addWidget(panel);
    m_panels[static_cast<size_t>(i)] = panel;
  }
  QLabel* comparison = m_panels[static_cast<size_t>(StatusPanel::Comparison) - 1];
  comparison->setToolTip(QStringLiteral("クリックすると比較方法が変わります。"));
  comparison->setCursor(Qt::PointingHandCursor);
  comparison->installEventFilter(this);
}

void TAVO3::arrange() {
  auto* label = new QLabel(QStringLiteral("回答"), this);
  label->setObjectName(QStringLiteral("Label2"));
  label->setBuddy(m_answer);
  auto* answerRow = new QHBoxLayout;
  answerRow->addWidget(label);
  answerRow->addWidget(m_answer, 1);
  auto* explanations = new QHBoxLayout;
  explanations->addWidget(m_fullAnswer, 3);
  explanations->addWidget(m_miniTest, 2);
  auto* buttons = new QHBoxLayout;
  for (QPushButton* made : std::as_const(m_buttons)) buttons->addWidget(made);
  buttons->insertStretch(static_cast<int>(m_buttons.size()) - 1, 1);

  auto* column = new QVBoxLayout(centralWidget());
  column->addWidget(m_source);
  column->addWidget(m_question, 3);
  column->addLayout(answerRow);
  column->addWidget(m_message);
  column->addLayout(explanations, 4);
  column->addWidget(m_lookUpRow);
  column->addLayout(buttons);
  // Along the way of the eyes; buttons take no focus.
  QWidget* before = m_answer;
  setTabOrder(before, m_fullAnswer);
  before = m_fullAnswer;
  for (QLineEdit* box : std::as_const(m_lookUps)) {
    setTabOrder(before, box);
    before = box;
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
  for (QLineEdit* box : std::as_const(m_lookUps)) box->setText(text);
}

void TAVO3::enableAnswerKey(bool enabled) {
  m_answerButton->setEnabled(enabled);
}

void TAVO3::showComparison(int choice) {
  m_comparisons[choice]->setChecked(true);
}

void TAVO3::showStatus(StatusPanel panel, const QString& text) {
  QLabel* label = m_panels[static_cast<size_t>(panel) - 1];
  label->setText(text);
  label->setVisible(!text.isEmpty());
}

void TAVO3::awaitConfirmation(bool awaited) {
  m_answer->setReadOnly(awaited);
  m_answer->setPlaceholderText(awaited ? QStringLiteral("Enter キーで次に進みます。") : QString());
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

bool TAVO3::functionKey(int key) {
  if (!m_loop || m_loop->exitConfirmed()) return false;
  switch (key) {
    case Qt::Key_F1:
      m_loop->showAnswer();
      return true;
    case Qt::Key_F6:
      m_loop->requestExit();
      return true;
    case Qt::Key_F11:
      m_loop->markKnown(false);
      return true;
    default:
      return false;
  }
}

void TAVO3::keyPressEvent(QKeyEvent* event) {
  if (!functionKey(event->key())) QMainWindow::keyPressEvent(event);
}

bool TAVO3::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && m_loop &&
      watched == m_panels[static_cast<size_t>(StatusPanel::Comparison) - 1]) {
    m_loop->nextComparison();
    return true;
  }
  if (event->type() != QEvent::KeyPress) return QMainWindow::eventFilter(watched, event);
  const auto& pressed = *static_cast<QKeyEvent*>(event);
  const bool isEnter = pressed.key() == Qt::Key_Return || pressed.key() == Qt::Key_Enter;
  if (watched == m_fullAnswer && isEnter) {
    pressEnter();
    return true;
  }
  if (auto* box = qobject_cast<QLineEdit*>(watched)) return answerKeyPressed(box, pressed);
  return QMainWindow::eventFilter(watched, event);
}

bool TAVO3::answerKeyPressed(QLineEdit* box, const QKeyEvent& event) {
  const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (box == m_answer && isEnter) {
    pressEnter();
    return true;
  }
  if (box == m_answer && m_loop && !event.text().isEmpty()) m_loop->keyPressed();
  if (!isWaveKey(event)) return false;
  if (!box->isReadOnly()) box->insert(QStringLiteral("～"));
  return true;
}

void TAVO3::pressEnter() {
  if (m_loop && !m_loop->exitConfirmed()) m_loop->enter(m_answer->text());
}

}  // namespace tavoli
