// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractSpinBox>

#include "conditions/NumberField.h"

namespace tavoli {

class ConditionsRules;

/// A number field of the conditions, with arrows. The rules judge every key that is typed in it.
class NumberBox final : public QAbstractSpinBox {
  Q_OBJECT
 public:
  /// `name` is that of the box in which the number stands.
  NumberBox(NumberField field, const QString& name, const QString& accessibleName,
            ConditionsRules& rules, QWidget* parent);

  void showText(const QString& text);

  void stepBy(int steps) override;
  QValidator::State validate(QString& text, int& caret) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  NumberField m_field;
  ConditionsRules& m_rules;
};

}  // namespace tavoli
