// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QTabWidget>

#include <functional>

#include "progress/MemorySurvey.h"
#include "progress/ProgressReport.h"
#include "progress/screens/ChartPage.h"
#include "progress/screens/TablesPage.h"

class QPushButton;

namespace tavoli {

class Clock;
class Paper;

/// Whose progress is shown, and what the screen works with.
struct ProgressSources {
  const QString& userId;
  const QString& dbFileWork;
  Course COURSE;
  QString& specialTable;
  ProgressCounters& counters;
  const Clock& clock;
  Dialogs& dialogs;
  Paper& paper;
};

/// The progress screen: charts of each course, tables over all, and the survey and the print of
/// them.
class TAVOstate final : public QMainWindow, private SurveyScreen {
  Q_OBJECT
 public:
  explicit TAVOstate(const ProgressSources& sources, QWidget* parent = nullptr);

  /// Asks where the PDF file of a report is to lie; an empty answer prints nothing.
  std::function<QString()> choosePdf;

 Q_SIGNALS:
  /// The learner goes on.
  void next();
  /// The window was closed instead.
  void left();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void setBusy(bool busy) override;
  void DispAchieve() override;
  void showTables() override;
  std::optional<QString> chooseSpecialTable(const QStringList& tables) override;

  void makeMenus();
  QPushButton* makeButton(const QString& name, const QString& caption);
  /// Draws the page in front, if its figures have changed since.
  void drawPage();
  void printReport();

  ProgressSources m_sources;
  ProgressReport m_report;
  MemorySurvey m_survey;
  QTabWidget* m_tabs;
  std::array<ChartPage*, levelCount> m_chartPages;
  TablesPage* m_tablesPage;
  QPushButton* m_command1;
  QPushButton* m_command2;
  std::array<bool, levelCount + 1> m_stale{};
  bool m_gone = false;  ///< the learner went on, or left
};

}  // namespace tavoli
