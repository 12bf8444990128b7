// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QPushButton>

#include "conditions/ConditionsRules.h"
#include "conditions/ConditionsScreen.h"

namespace tavoli {

class ChoicePanel;
class LessonPanel;
class NumbersPanel;
class PastPanel;

/// The conditions screen.
class TAVO2 final : public QMainWindow, public ConditionsScreen {
  Q_OBJECT
 public:
  /// The rules are entered before every showing.
  explicit TAVO2(ConditionsRules& rules, QWidget* parent = nullptr);
  ~TAVO2() override;

  void showCourse(Course COURSE, const QString& specialTable) override;
  void showMethod(SelMethod selMethod) override;
  void showStartMode(StartMode startMode) override;
  void listStarts(const QStringList& entries) override;
  void showStart(const QString& text) override;
  void showMemory(MemorySelect memorySelect) override;
  void showNumber(NumberField field, const QString& text) override;
  void showFolder(const QString& folder) override;
  void showLessonName(const QString& name) override;
  void showLesson(const QStringList& lines, const QString& trouble) override;
  void listPastRuns(const QStringList& entries) override;
  void showPastRun(const QString& caption, const PastRun& run) override;
  std::optional<QString> chooseSpecialTable(const QStringList& tables,
                                            const QString& present) override;
  void focusNext() override;
  void focusLessonName() override;
  void focusStart() override;
  void setBusy(bool busy) override;

 Q_SIGNALS:
  /// Next found everything right; the run starts at the key.
  void next(const QString& startKey);
  /// The learner ends the program here.
  void left();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  ChoicePanel* m_choices;
  LessonPanel* m_lesson;
  NumbersPanel* m_numbers;
  PastPanel* m_past;
  QPushButton* m_command1;
  bool m_left = false;
};

}  // namespace tavoli
