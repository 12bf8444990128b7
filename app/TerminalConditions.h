// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Terminal.h"
#include "conditions/ConditionsScreen.h"

namespace tavoli {

/// The conditions screen in the terminal. It has no controls: the conditions are shown as a whole,
/// when they are asked for.
class TerminalConditions final : public ConditionsScreen {
 public:
  explicit TerminalConditions(Terminal& terminal) : m_terminal(terminal) {}

  /// Shows this run's conditions.
  void showPresent(const CourseChoice& course, const PracticeConditions& conditions);
  /// Shows them with last time's.
  void showAll(const CourseChoice& course, const PracticeConditions& conditions);

  void showCourse(Course, const QString&) override {}
  void showMethod(SelMethod) override {}
  void showStartMode(StartMode) override {}
  void listStarts(const QStringList&) override {}
  void showStart(const QString&) override {}
  void showMemory(MemorySelect) override {}
  void showNumber(NumberField, const QString&) override {}
  void showFolder(const QString&) override {}
  void showLessonName(const QString&) override {}
  void showLesson(const QStringList&, const QString&) override {}
  void listPastRuns(const QStringList&) override {}
  void showPastRun(const QString& caption, const PastRun& run) override;
  std::optional<QString> chooseSpecialTable(const QStringList& tables,
                                            const QString& present) override;
  void focusNext() override {}
  void focusLessonName() override {}
  void focusStart() override {}
  void setBusy(bool) override {}

 private:
  Terminal& m_terminal;
  PastRun m_past;
};

}  // namespace tavoli
