// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/screens/ChoiceDialog.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "system/screens/WindowTitle.h"

namespace tavoli {

namespace {

constexpr int listCharacters = 30;

}  // namespace

ChoiceDialog::ChoiceDialog(const Choice& choice, QWidget* parent)
    : QDialog(parent), m_present(choice.present), m_entries(new QComboBox(this)) {
  setWindowTitle(tavoli::windowTitle(choice.title));
  setModal(true);
  m_entries->setObjectName(QStringLiteral("Combo2"));
  m_entries->setAccessibleName(choice.label);
  m_entries->view()->setAccessibleName(choice.label);
  m_entries->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  m_entries->setMinimumContentsLength(listCharacters);
  m_entries->addItems(choice.entries);
  if (!m_present.isEmpty()) {
    m_entries->setPlaceholderText(m_present);
    m_entries->setCurrentIndex(static_cast<int>(choice.entries.indexOf(m_present)));
  }
  auto* label = new QLabel(choice.label, this);
  label->setBuddy(m_entries);

  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName(QStringLiteral("Command1"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* cancel = new QPushButton(QStringLiteral("キャンセル"), this);
  cancel->setObjectName(QStringLiteral("Command2"));
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(m_entries);
  column->addStretch(1);
  column->addLayout(buttons);
  m_entries->setFocus();
}

QString ChoiceDialog::chosen() const {
  return m_entries->currentIndex() < 0 ? m_present : m_entries->currentText();
}

}  // namespace tavoli
