// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGridLayout>
#include <QGroupBox>

#include <array>

#include "conditions/NumberField.h"
#include "conditions/screens/NumberBox.h"

namespace tavoli {

/// How much is practised, how often reviewed, and in what time: all number fields.
class NumbersPanel final : public QWidget {
  Q_OBJECT
 public:
  NumbersPanel(ConditionsRules& rules, QWidget* parent);

  void showNumber(NumberField field, const QString& text);

 private:
  QGroupBox* makeGroup(const QString& title);
  /// The field's box; `name` is that of the box on the screen.
  NumberBox* make(NumberField field, const QString& name, const QString& caption, QGroupBox* group);
  QGroupBox* makeLevels();
  QGroupBox* makeLoads();
  void addReview(QGridLayout* grid);
  void addTargets(QGridLayout* grid);

  ConditionsRules& m_rules;
  std::array<NumberBox*, numberFieldCount> m_boxes{};
};

}  // namespace tavoli
