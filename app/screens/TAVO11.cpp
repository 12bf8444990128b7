#include "app/screens/TAVO11.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

#include "home/Placement.h"
#include "system/Dialogs.h"
#include "system/screens/WindowTitle.h"

namespace tavoli {

namespace {

/// The widths of the two paths, in characters.
constexpr int fewestCharacters = 30;
constexpr int wantedCharacters = 70;

template <class Control>
Control* make(const QString& objectName, const QString& accessibleName) {
  auto* control = new Control;
  control->setObjectName(objectName);
  control->setAccessibleName(accessibleName);
  return control;
}

}  // namespace

TAVO11::TAVO11(Module1& module, Files& files, Dialogs& dialogs, QWidget* tavo1)
    : QDialog(tavo1),
      m_dialogs(dialogs),
      m_relocation(files, module.applicationFolder),
      m_label1(new QLabel(QStringLiteral("学習者個人用データベースフォルダ TavoPersonalData "
                                         "の配置場所を指定します。"))),
      m_label2(new QLabel(QStringLiteral("配置場所（フォルダ名）を「参照」ボタンで指定した後、"
                                         "「実行」をクリックして下さい。"))),
      m_text1(make<QLineEdit>(QStringLiteral("Text1"), QStringLiteral("新しい配置場所"))),
      m_text2(make<QLineEdit>(QStringLiteral("Text2"), QStringLiteral("現在の配置場所"))),
      m_command1(make<QPushButton>(QStringLiteral("Command1"), QStringLiteral("実行"))),
      m_command2(make<QPushButton>(QStringLiteral("Command2"), QStringLiteral("キャンセル"))),
      m_command3(make<QPushButton>(QStringLiteral("Command3"), QStringLiteral("参照"))) {
  setObjectName(QStringLiteral("TAVO11"));
  setWindowTitle(tavoli::windowTitle(QStringLiteral("個人ＤＢ位置の変更、再配置")));
  setModal(true);
  if (tavo1) {
    setFont(tavo1->font());
    move(tavo1->pos());
  }
  arrange();
  module.dbPath = readPlacement(files, module.applicationFolder);
  m_text2->setText(module.dbPath);
  m_text2->setReadOnly(true);
  connect(m_command1, &QPushButton::clicked, this, &TAVO11::run);
  connect(m_command2, &QPushButton::clicked, this, &TAVO11::reject);
  connect(m_command3, &QPushButton::clicked, this, &TAVO11::browse);
}

void TAVO11::arrange() {
  m_label1->setObjectName(QStringLiteral("Label1"));
  m_label2->setObjectName(QStringLiteral("Label2"));
  for (QPushButton* button : {m_command1, m_command2, m_command3})
    button->setText(button->accessibleName());
  m_command3->setDefault(true);
  auto* label3 = new QLabel(QStringLiteral("現在の配置場所："));
  label3->setBuddy(m_text2);
  for (QLabel* label : {m_label1, m_label2}) label->setWordWrap(true);
  const int character = m_text1->fontMetrics().averageCharWidth();
  m_text1->setMinimumWidth(character * fewestCharacters);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_command1);
  buttons->addWidget(m_command2);
  auto* grid = new QGridLayout(this);
  grid->addWidget(m_label1, 0, 0, 1, 3);
  grid->addWidget(m_label2, 1, 0, 1, 3);
  grid->addWidget(m_text1, 2, 0, 1, 2);
  grid->addWidget(m_command3, 2, 2);
  grid->addWidget(label3, 3, 0);
  grid->addWidget(m_text2, 3, 1, 1, 2);
  grid->addLayout(buttons, 4, 0, 1, 3);
  grid->setColumnStretch(1, 1);
  setTabOrder(m_command3, m_text1);
  setTabOrder(m_text1, m_command1);
  setTabOrder(m_command1, m_command2);
  setTabOrder(m_command2, m_text2);
  m_command3->setFocus();
  const int room = screen()->availableSize().width() * 9 / 10;
  const int wide = std::max(sizeHint().width(), std::min(character * wantedCharacters, room));
  resize(wide, layout()->totalHeightForWidth(wide));
}

void TAVO11::browse() {
  const QString folder = QFileDialog::getExistingDirectory(
      this, tavoli::windowTitle(QStringLiteral("ＤＢを配置するフォルダを指定して下さい。")),
      m_text1->text());
  if (!folder.isEmpty()) m_text1->setText(folder);
}

void TAVO11::run() {
  if (m_text1->text().isEmpty()) return;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const Relocation::Result result = m_relocation.place(m_text1->text());
  QGuiApplication::restoreOverrideCursor();
  m_dialogs.show(message(result));
  if (result != Relocation::Result::SameFolder && result != Relocation::Result::InsideSource)
    accept();
}

QString TAVO11::message(Relocation::Result result) const {
  const QString target = Relocation::target(m_text1->text());
  switch (result) {
    case Relocation::Result::Placed:
      return target + QStringLiteral(" に個人用ベータベースを配置しました。");
    case Relocation::Result::SameFolder:
      return QStringLiteral("コピーできません。送り側と受け側のフォルダが同じです。");
    case Relocation::Result::InsideSource:
      return QStringLiteral("コピーできません。現在の配置場所の中にあるフォルダは指定できません。");
    case Relocation::Result::CopyFailed:
      return target + QStringLiteral(
                          " にコピーできませんでした。配置場所は変わっていないので、空き容量と"
                          "フォルダへの書き込みを確かめてからやり直してください。");
    case Relocation::Result::NotRecorded:
      break;
  }
  return QStringLiteral(
      "新しい配置場所を TavoAlloc.txt に記録できなかったので、配置場所は変わっていません。");
}

}  // namespace tavoli
