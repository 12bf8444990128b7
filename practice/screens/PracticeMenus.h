// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QMenuBar>

#include "practice/DrillKeys.h"

namespace tavoli {

/// The menus of the practice screen.
class PracticeMenus final : public QObject {
  Q_OBJECT
 public:
  explicit PracticeMenus(QMenuBar& bar);

  void checkLog(bool shown) { m_log->setChecked(shown); }
  void checkComparison(int choice) { m_comparisons[choice]->setChecked(true); }
  void checkTimeUpSound(int choice) { m_sounds[choice]->setChecked(true); }

 Q_SIGNALS:
  void repeatsWanted();
  void countsToggled(bool shown);
  void chosen(const MenuCommand& command);

 private:
  QAction* add(QMenu* menu, const MenuCommand& command);
  /// A menu of which one entry is checked.
  QList<QAction*> addChoices(QMenu* menu, const std::vector<MenuCommand>& commands);

  QAction* m_log;
  QList<QAction*> m_comparisons;
  QList<QAction*> m_sounds;
};

}  // namespace tavoli
