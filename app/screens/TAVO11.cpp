// SPDX-License-Identifier: GPL-3.0-or-later

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

using namespace Qt::StringLiterals;

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
      m_label1(new QLabel(u"学習者個人用データベースフォルダ TavoPersonalData "
                          "の配置場所を指定します。"_s)),
      m_label2(new QLabel(u"配置場所（フォルダ名）を「参照」ボタンで指定した後、"
                          "「実行」をクリックして下さい。"_s)),
      m_text1(make<QLineEdit>(u"Text1"_s, u"新しい配置場所"_s)),
      m_text2(make<QLineEdit>(u"Text2"_s, u"現在の配置場所"_s)),
      m_command1(make<QPushButton>(u"Command1"_s, u"実行"_s)),
      m_command2(make<QPushButton>(u"Command2"_s, u"キャンセル"_s)),
      m_command3(make<QPushButton>(u"Command3"_s, u"参照"_s)) {
  setObjectName(u"TAVO11"_s);
  setWindowTitle(tavoli::windowTitle(u"個人ＤＢ位置の変更、再配置"_s));
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
  m_label1->setObjectName(u"Label1"_s);
  m_label2->setObjectName(u"Label2"_s);
  for (QPushButton* button : {m_command1, m_command2, m_command3})
    button->setText(button->accessibleName());
  m_command3->setDefault(true);
  auto* label3 = new QLabel(u"現在の配置場所："_s);
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
      this, tavoli::windowTitle(u"ＤＢを配置するフォルダを指定して下さい。"_s), m_text1->text());
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
      return target + u" に個人用ベータベースを配置しました。"_s;
    case Relocation::Result::SameFolder:
      return u"コピーできません。送り側と受け側のフォルダが同じです。"_s;
    case Relocation::Result::InsideSource:
      return u"コピーできません。現在の配置場所の中にあるフォルダは指定できません。"_s;
    case Relocation::Result::CopyFailed:
      return target +
             u" にコピーできませんでした。配置場所は変わっていないので、空き容量と"
             "フォルダへの書き込みを確かめてからやり直してください。"_s;
    case Relocation::Result::NotRecorded:
      break;
  }
  return u"新しい配置場所を TavoAlloc.txt に記録できなかったので、配置場所は変わっていません。"_s;
}

}  // namespace tavoli
