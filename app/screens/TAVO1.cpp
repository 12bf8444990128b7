// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/screens/TAVO1.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>

#include "app/screens/LoginPicture.h"
#include "app/screens/TAVO11.h"
#include "home/Relocation.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int focusDelayMilliseconds = 2000;
// Widths in average characters.
constexpr int fieldCharacters = 24;
constexpr int buttonCharacters = 11;

QLineEdit* makeField(const QString& objectName, const QString& name) {
  auto* field = new QLineEdit;
  field->setObjectName(objectName);
  field->setAccessibleName(name);
  return field;
}

QLabel* makeLabel(const QString& objectName, const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text);
  label->setObjectName(objectName);
  label->setBuddy(buddy);
  return label;
}

QPushButton* makeButton(const QString& objectName, const QString& text, const QString& name) {
  auto* button = new QPushButton(text);
  button->setObjectName(objectName);
  button->setAccessibleName(name);
  button->setAutoDefault(true);
  return button;
}

}  // namespace

TAVO1::TAVO1(Module1& module, Files& files, Dialogs& dialogs, const QString& version)
    : m_module(module),
      m_files(files),
      m_dialogs(dialogs),
      m_picture1(new LoginPicture),
      m_frame2(new QFrame(m_picture1)),
      m_label4(new QLabel),
      m_text2(makeField(u"Text2"_s, u"パスワード"_s)),
      m_text1(makeField(u"Text1"_s, u"ユーザーID"_s)),
      m_command2(makeButton(u"Command2"_s, u"次へ"_s, u"次へ（ログインする）"_s)),
      m_command1(makeButton(u"Command1"_s, u"終了"_s, u"終了（プログラムを終わる）"_s)),
      m_pointSize(font().pointSizeF()) {
  setObjectName(u"TAVO1"_s);
  setWindowTitle(u"Tavoli"_s);
  setCentralWidget(m_picture1);
  makeFields();
  makeMenus(version);

  m_timer1.setObjectName(u"Timer1"_s);
  m_timer1.setSingleShot(true);
  connect(&m_timer1, &QTimer::timeout, this, [this] {
    if (m_text2->isEnabled()) m_text2->setFocus();
  });
  m_timer1.start(focusDelayMilliseconds);

  m_picture1->installEventFilter(this);
  for (QLineEdit* field : {m_text2, m_text1}) field->installEventFilter(this);
  for (const QScreen* screen : QGuiApplication::screens()) watch(screen);
  connect(qApp, &QGuiApplication::screenAdded, this, &TAVO1::watch);
  connect(qApp, &QGuiApplication::primaryScreenChanged, this, &TAVO1::placeForm);
  placeForm();
}

void TAVO1::makeFields() {
  m_label4->setObjectName(u"Label4"_s);
  m_label4->setText(
      u"２人以上が使用する場合はパスワードを設定して下さい。\n"
      "誤って個人データベースが変更されることを防止します。\n"
      "登録済み標準ユーザーIDは 000と001です。"_s);

  m_text2->setEchoMode(QLineEdit::Password);
  m_text2->setAccessibleDescription(m_label4->text());
  m_text1->setInputMethodHints(Qt::ImhLatinOnly | Qt::ImhNoPredictiveText);
  m_text1->setAttribute(Qt::WA_InputMethodEnabled, false);
  connect(m_command2, &QPushButton::clicked, this, &TAVO1::logIn);
  connect(m_command1, &QPushButton::clicked, this, &TAVO1::close);

  m_frame2->setObjectName(u"Frame2"_s);
  m_frame2->setAccessibleName(u"ログイン"_s);
  m_frame2->setFrameShape(QFrame::StyledPanel);
  m_frame2->setAutoFillBackground(true);
  auto* grid = new QGridLayout(m_frame2);
  grid->addWidget(m_label4, 0, 0, 1, 3);
  grid->addWidget(makeLabel(u"Label2"_s, u"パスワード"_s, m_text2), 2, 0);
  grid->addWidget(m_text2, 2, 1);
  grid->addWidget(makeLabel(u"Label1"_s, u"ユーザーID"_s, m_text1), 3, 0);
  grid->addWidget(m_text1, 3, 1);
  grid->addWidget(m_command2, 2, 2);
  grid->addWidget(m_command1, 3, 2);
  setTabOrder(m_text2, m_text1);
  setTabOrder(m_text1, m_command2);
  setTabOrder(m_command2, m_command1);
  m_text2->setFocus();
}

void TAVO1::makeMenus(const QString& version) {
  const auto add = [this](const char* objectName, const QString& caption) {
    QAction* action = menuBar()->addAction(caption);
    action->setObjectName(QLatin1String(objectName));
    return action;
  };
  menuBar()->setAccessibleName(u"メニュー"_s);
  connect(add("menu11", u"◆個人ＤＢ位置の変更、再配置"_s), &QAction::triggered, this,
          &TAVO1::relocate);
  connect(add("credits", u"クレジット"_s), &QAction::triggered, this, &TAVO1::showCredits);
  const QString captionStart = u"                                          ( ﾊﾞｰｼﾞｮﾝ "_s;
  add("Version", captionStart + version + u" )"_s)->setEnabled(false);
}

void TAVO1::watch(const QScreen* screen) const {
  connect(screen, &QScreen::geometryChanged, this, &TAVO1::placeForm);
  connect(screen, &QScreen::availableGeometryChanged, this, &TAVO1::placeForm);
}

void TAVO1::placeForm() {
  const LoginLayout layout = loginLayout(screen()->size());
  const QRect available = screen()->availableGeometry();
  // The size of the form is that of the window with its frame.
  const QSize frame = frameSizeAround();
  QRect form(QPoint(), layout.form.value_or(available.size()).boundedTo(available.size()));
  form.moveCenter(available.center());
  if (layout.form) setWindowState(windowState() & ~Qt::WindowMaximized);
  resize(form.size() - frame);
  move(form.topLeft());
  if (!layout.form) setWindowState(windowState() | Qt::WindowMaximized);
  layOut();
}

QSize TAVO1::frameSizeAround() const {
  // A window that was never on the screen has no frame yet.
  if (!isVisible()) return {0, style()->pixelMetric(QStyle::PM_TitleBarHeight)};
  return frameGeometry().size() - size();
}

void TAVO1::layOut() {
  const LoginLayout layout = loginLayout(screen()->size());
  QFont windowFont = font();
  windowFont.setPointSizeF(m_pointSize * layout.scale);
  setFont(windowFont);
  menuBar()->setFont(windowFont);
  QFont fieldFont = font();
  fieldFont.setPointSizeF(layout.fontSize * layout.scale);
  m_frame2->setFont(fieldFont);
  const QFontMetrics metrics(fieldFont);
  for (QLineEdit* field : {m_text2, m_text1})
    field->setMinimumWidth(metrics.averageCharWidth() * fieldCharacters);
  for (QPushButton* button : {m_command2, m_command1})
    button->setMinimumWidth(metrics.averageCharWidth() * buttonCharacters);
  auto* grid = static_cast<QGridLayout*>(m_frame2->layout());
  const int gap = metrics.height() / 2;
  grid->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
  grid->setSpacing(gap);
  grid->setRowMinimumHeight(1, gap / 2);
  m_frame2->resize(m_frame2->sizeHint());
  m_picture1->setMinimumSize(m_frame2->size());
  m_picture1->compose(layout);
  placeFrame2();
}

void TAVO1::placeFrame2() {
  const LoginLayout layout = loginLayout(screen()->size());
  const double unit = m_picture1->pixelsPerUnit();
  const double top = (layout.logo.y() + LoginLayout::logoSize.height()) * unit;
  const double bottom = layout.motto.y() * unit;
  const double middle = (layout.motto.x() + LoginLayout::mottoSize.width() / 2.0) * unit;
  const QPoint corner(int(middle) - m_frame2->width() / 2,
                      int(top + bottom) / 2 - m_frame2->height() / 2);
  const QSize room = m_picture1->size() - m_frame2->size();
  m_frame2->move(std::clamp(corner.x(), 0, std::max(0, room.width())),
                 std::clamp(corner.y(), 0, std::max(0, room.height())));
}

bool TAVO1::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_picture1) {
    if (event->type() == QEvent::Resize) layOut();
    return false;
  }
  switch (event->type()) {
    case QEvent::KeyPress:
      m_timer1.stop();
      return keyPressed(watched, static_cast<QKeyEvent*>(event)->key());
    case QEvent::MouseButtonPress:
    case QEvent::InputMethod:
      m_timer1.stop();
      return false;
    default:
      return false;
  }
}

bool TAVO1::keyPressed(const QObject* field, int key) {
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (field == m_text2 && (enter || key == Qt::Key_Down)) {
    m_text1->setFocus();
    return true;
  }
  if (field == m_text1 && enter) {
    m_command2->click();
    return true;
  }
  if (field == m_text1 && key == Qt::Key_Up) {
    m_text2->setFocus();
    return true;
  }
  return false;
}

void TAVO1::logIn() {
  m_timer1.stop();
  Q_EMIT next(m_text1->text(), m_text2->text());
}

void TAVO1::letIn() {
  m_loggedIn = true;
  close();
}

void TAVO1::relocate() {
  QInputDialog box(this);
  box.setWindowTitle(u"Tavoli"_s);
  box.setFont(font());
  box.setLabelText(
      u"個人データベースの位置指定のためのパスワードを入れて下さい。\n"
      "この機能は標準サポート機能ではありません。"_s);
  box.setOkButtonText(u"OK"_s);
  box.setCancelButtonText(u"キャンセル"_s);
  if (box.exec() != QDialog::Accepted || box.textValue().isEmpty()) return;
  if (!isAccessPassword(box.textValue())) {
    m_dialogs.show(u"パスワードが間違っています。"_s);
    return;
  }
  TAVO11(m_module, m_files, m_dialogs, this).exec();
}

void TAVO1::showCredits() {
  m_dialogs.show(
      u"1. Tavoli uses \"Microsoft Agent technology\".\n"
      "2. Tavoli uses character Peedy.\n"
      "3. The character and the pictures are drawn for this program.\n"
      "4. Headwords and levels: The CEFR-J Wordlist Version 1.5. Compiled by Yukio Tono, Tokyo\n"
      "   University of Foreign Studies. Retrieved from http://www.cefr-j.org/download.html on\n"
      "   1/20/2020."_s);
}

void TAVO1::setUserId(const QString& text) {
  m_text1->setText(text);
}

void TAVO1::focusUserId() {
  m_text1->setFocus();
}

void TAVO1::focusPassword() {
  m_text2->setFocus();
}

void TAVO1::setBusy(bool busy) {
  if (busy)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

void TAVO1::showEngineTrouble() {
  m_dialogs.show(
      u"データベースエンジンが使えないので、プログラムをインストールし直してください"
      "（個人データベースはそのまま残っています）。"_s);
}

void TAVO1::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  connect(windowHandle(), &QWindow::screenChanged, this, &TAVO1::layOut, Qt::UniqueConnection);
}

void TAVO1::closeEvent(QCloseEvent* event) {
  event->accept();
  if (!m_loggedIn) Q_EMIT left();
}

}  // namespace tavoli
