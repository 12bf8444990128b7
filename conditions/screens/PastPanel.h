// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHash>
#include <QLabel>

#include "conditions/PastConditions.h"

namespace tavoli {

class ConditionsRules;

/// What was chosen last time, or in an earlier run that the learner picks from a list. For looking
/// only.
class PastPanel final : public QGroupBox {
  Q_OBJECT
 public:
  PastPanel(ConditionsRules& rules, QWidget* parent);

  void list(const QStringList& entries);
  void showRun(const QString& caption, const PastRun& run);

 private:
  QLabel* makeValue(const QString& name);
  /// A row with a value; where there is none the row is not shown.
  void addRow(const QString& caption, const QString& name);
  /// Shows a value's first characters, with the whole in its tip.
  void show(const char* name, const QString& value, int characters = 0);

  QComboBox* m_runs;
  QGridLayout* m_grid;
  QHash<QLabel*, QLabel*> m_captions;  ///< of the values that are only shown where there is one
};

}  // namespace tavoli
