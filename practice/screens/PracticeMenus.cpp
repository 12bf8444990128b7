// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/PracticeMenus.h"

#include <QActionGroup>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QAction* add(QMenu* menu, const QString& name, const QString& caption) {
  QAction* action = menu->addAction(caption);
  action->setObjectName(name);
  return action;
}

QMenu* addMenu(QMenuBar& bar, const QString& name, const QString& caption) {
  QMenu* menu = bar.addMenu(caption);
  menu->setObjectName(name);
  menu->setAccessibleName(caption);
  return menu;
}

}  // namespace

PracticeMenus::PracticeMenus(QMenuBar& bar) : QObject(&bar) {
  QMenu* questions = addMenu(bar, u"menuQuestions"_s, u"出題"_s);
  connect(tavoli::add(questions, u"menu1"_s, u"繰返し回数の設定"_s), &QAction::triggered, this,
          &PracticeMenus::repeatsWanted);
  add(questions, reshuffleCommand());

  QMenu* view = addMenu(bar, u"menuView"_s, u"表示"_s);
  m_log = add(view, logCommand());
  m_log->setCheckable(true);
  QAction* counts = tavoli::add(view, u"menu_DispKaisuu"_s, u"練習回数の表示"_s);
  counts->setCheckable(true);
  connect(counts, &QAction::triggered, this, &PracticeMenus::countsToggled);

  m_comparisons = addChoices(addMenu(bar, u"menu4"_s, u"比較方法"_s), comparisonCommands());
  m_sounds = addChoices(addMenu(bar, u"menuTimeUp"_s, u"時間切れの音"_s), timeUpCommands());
}

QAction* PracticeMenus::add(QMenu* menu, const MenuCommand& command) {
  QAction* action = tavoli::add(menu, command.name, command.caption);
  connect(action, &QAction::triggered, this, [this, &command] { Q_EMIT chosen(command); });
  return action;
}

QList<QAction*> PracticeMenus::addChoices(QMenu* menu, const std::vector<MenuCommand>& commands) {
  QList<QAction*> actions;
  auto* group = new QActionGroup(this);
  for (const MenuCommand& command : commands) {
    QAction* action = add(menu, command);
    action->setCheckable(true);
    group->addAction(action);
    actions.append(action);
  }
  return actions;
}

}  // namespace tavoli
