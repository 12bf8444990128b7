// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/OptionSet.h"

#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace tavoli {

OptionSet::OptionSet(const QString& name, QWidget* parent, std::function<void(int)> chosen)
    : m_name(name), m_parent(parent), m_buttons(new QButtonGroup(parent)) {
  QObject::connect(m_buttons, &QButtonGroup::idClicked, m_buttons,
                   [this, chosen = std::move(chosen)](int index) {
                     placeTabStop();
                     if (index != std::exchange(m_marked, index)) chosen(index);
                   });
}

QRadioButton* OptionSet::add(const QString& caption, const QString& accessibleName) {
  const auto index = static_cast<int>(m_buttons->buttons().size());
  auto* option = new QRadioButton(caption, m_parent);
  option->setObjectName(u"%1(%2)"_s.arg(m_name).arg(index));
  if (!accessibleName.isEmpty()) option->setAccessibleName(accessibleName);
  m_buttons->addButton(option, index);
  return option;
}

QRadioButton* OptionSet::button(int index) const {
  return static_cast<QRadioButton*>(m_buttons->button(index));
}

void OptionSet::mark(int index) {
  m_marked = index;
  if (QRadioButton* option = button(index)) {
    option->setChecked(true);
  } else if (QAbstractButton* marked = m_buttons->checkedButton()) {
    m_buttons->setExclusive(false);
    marked->setChecked(false);
    m_buttons->setExclusive(true);
  }
  placeTabStop();
}

void OptionSet::placeTabStop() const {
  const QAbstractButton* marked = m_buttons->checkedButton();
  for (QAbstractButton* option : m_buttons->buttons())
    option->setFocusPolicy(!marked || option == marked ? Qt::StrongFocus : Qt::ClickFocus);
}

}  // namespace tavoli
