#include "practice/screens/PracticeMenus.h"

#include <QActionGroup>

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
  QMenu* questions = addMenu(bar, QStringLiteral("menuQuestions"), QStringLiteral("出題"));
  connect(tavoli::add(questions, QStringLiteral("menu1"), QStringLiteral("繰返し回数の設定")),
          &QAction::triggered, this, &PracticeMenus::repeatsWanted);
  add(questions, reshuffleCommand());

  QMenu* view = addMenu(bar, QStringLiteral("menuView"), QStringLiteral("表示"));
  m_log = add(view, logCommand());
  m_log->setCheckable(true);
  QAction* counts =
      tavoli::add(view, QStringLiteral("menu_DispKaisuu"), QStringLiteral("練習回数の表示"));
  counts->setCheckable(true);
  connect(counts, &QAction::triggered, this, &PracticeMenus::countsToggled);

  m_comparisons = addChoices(addMenu(bar, QStringLiteral("menu4"), QStringLiteral("比較方法")),
                             comparisonCommands());
  m_sounds = addChoices(addMenu(bar, QStringLiteral("menuTimeUp"), QStringLiteral("時間切れの音")),
                        timeUpCommands());
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
