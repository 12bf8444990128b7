#include "practice/screens/PracticeMenus.h"

#include <QActionGroup>

#include "judge/Comparison.h"

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
  connect(add(questions, QStringLiteral("menu1"), QStringLiteral("繰返し回数の設定")),
          &QAction::triggered, this, &PracticeMenus::repeatsWanted);
  connect(add(questions, QStringLiteral("menu2"), QStringLiteral("順不同出題")),
          &QAction::triggered, this, &PracticeMenus::reshuffleWanted);

  QMenu* view = addMenu(bar, QStringLiteral("menuView"), QStringLiteral("表示"));
  m_log = add(view, QStringLiteral("menu3"), QStringLiteral("練習経過表示"));
  m_log->setCheckable(true);
  connect(m_log, &QAction::triggered, this, &PracticeMenus::logToggled);
  QAction* counts = add(view, QStringLiteral("menu_DispKaisuu"), QStringLiteral("練習回数の表示"));
  counts->setCheckable(true);
  connect(counts, &QAction::triggered, this, &PracticeMenus::countsToggled);

  QStringList captions;
  for (const ComparisonChoice& choice : comparisonChoices()) captions.append(choice.caption);
  m_comparisons = addChoices(addMenu(bar, QStringLiteral("menu4"), QStringLiteral("比較方法")),
                             QStringLiteral("menu4"), captions, &PracticeMenus::comparisonChosen);
  m_sounds = addChoices(
      addMenu(bar, QStringLiteral("menuTimeUp"), QStringLiteral("時間切れの音")),
      QStringLiteral("menuTimeUp"),
      {QStringLiteral("音なし"), QStringLiteral("ポン"), QStringLiteral("\"Time is up.\" 発音")},
      &PracticeMenus::timeUpSoundChosen);
}

QList<QAction*> PracticeMenus::addChoices(QMenu* menu, const QString& name,
                                          const QStringList& captions, Chosen chosen) {
  QList<QAction*> actions;
  auto* group = new QActionGroup(this);
  for (const QString& caption : captions) {
    const auto choice = static_cast<int>(actions.size());
    QAction* action = add(menu, name + QString::number(choice + 1), caption);
    action->setCheckable(true);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, choice, chosen] {
      Q_EMIT(this->*chosen)(choice);
    });
    actions.append(action);
  }
  return actions;
}

}  // namespace tavoli
