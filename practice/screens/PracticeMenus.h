#pragma once

#include <QAction>
#include <QMenuBar>

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
  void reshuffleWanted();
  void logToggled();
  void countsToggled(bool shown);
  void comparisonChosen(int choice);
  void timeUpSoundChosen(int choice);

 private:
  using Chosen = void (PracticeMenus::*)(int);
  /// A menu of captions of which one is checked; `name` and a number from 1 name the entries.
  QList<QAction*> addChoices(QMenu* menu, const QString& name, const QStringList& captions,
                             Chosen chosen);

  QAction* m_log;
  QList<QAction*> m_comparisons;
  QList<QAction*> m_sounds;
};

}  // namespace tavoli
