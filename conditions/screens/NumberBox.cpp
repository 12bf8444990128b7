// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/NumberBox.h"

#include <QLineEdit>
#include <QWheelEvent>

#include "conditions/ConditionsRules.h"

using namespace Qt::StringLiterals;

namespace tavoli {

NumberBox::NumberBox(NumberField field, const QString& name, const QString& accessibleName,
                     ConditionsRules& rules, QWidget* parent)
    : QAbstractSpinBox(parent), m_field(field), m_rules(rules) {
  setObjectName(u"UpDown"_s + name);
  setAccessibleName(accessibleName);
  setFocusPolicy(Qt::StrongFocus);
  lineEdit()->setObjectName(name);
  lineEdit()->setAccessibleName(accessibleName);
  lineEdit()->setAlignment(Qt::AlignRight);
  lineEdit()->setInputMethodHints(Qt::ImhPreferNumbers);
  connect(lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString& text) { m_rules.typeNumber(m_field, text); });
}

void NumberBox::showText(const QString& text) {
  if (lineEdit()->text() == text) return;
  lineEdit()->setText(text);
  // What the rules put there is replaced by the next key, not added to.
  if (hasFocus()) lineEdit()->selectAll();
}

void NumberBox::stepBy(int steps) {
  m_rules.stepNumber(m_field, steps);
}

QValidator::State NumberBox::validate(QString&, int&) const {
  return QValidator::Acceptable;
}

QSize NumberBox::sizeHint() const {
  QString widest = u"99"_s;
  if (m_field == NumberField::MaxLoadWords || m_field == NumberField::MaxLoadSent)
    widest = u"24990"_s;
  if (m_field == NumberField::TargetSentA || m_field == NumberField::TargetWordA)
    widest = u"9.99"_s;
  const QFontMetrics metrics = fontMetrics();
  return {metrics.horizontalAdvance(widest) + 2 * metrics.height(),
          QAbstractSpinBox::sizeHint().height()};
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
  QAbstractSpinBox::focusOutEvent(event);
  m_rules.leaveNumber(m_field);
}

void NumberBox::wheelEvent(QWheelEvent* event) {
  // Turning the wheel over a field that is only passed by must not change it.
  if (hasFocus())
    QAbstractSpinBox::wheelEvent(event);
  else
    event->ignore();
}

}  // namespace tavoli
