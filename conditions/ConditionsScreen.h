// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "conditions/NumberField.h"
#include "conditions/PastConditions.h"
#include "conditions/PracticeConditions.h"

namespace tavoli {

/// What the rules of the conditions screen ask of whatever shows it. What is shown is never
/// reported back as an action of the learner.
class ConditionsScreen {
 public:
  virtual ~ConditionsScreen() = default;

  /// `specialTable` is empty while no specialist dictionary is in use.
  virtual void showCourse(Course COURSE, const QString& specialTable) = 0;
  /// Only a lesson shows its preview and lets its name be typed.
  virtual void showMethod(SelMethod selMethod) = 0;
  /// Only a specified start ("3") lets one be chosen.
  virtual void showStartMode(StartMode startMode) = 0;
  virtual void listStarts(const QStringList& entries) = 0;
  virtual void showStart(const QString& text) = 0;
  virtual void showMemory(MemorySelect memorySelect) = 0;
  virtual void showNumber(NumberField field, const QString& text) = 0;

  /// Opens a folder in the picker; one that is not there leaves the picker where it is.
  virtual void showFolder(const QString& folder) = 0;
  virtual void showLessonName(const QString& name) = 0;
  /// The lines of the lesson file, or what hinders their being read.
  virtual void showLesson(const QStringList& lines, const QString& trouble) = 0;

  virtual void listPastRuns(const QStringList& entries) = 0;
  virtual void showPastRun(const QString& caption, const PastRun& run) = 0;

  /// Lets the learner choose a specialist dictionary; `present` is the one in use, or empty.
  /// Nothing when none was chosen.
  virtual std::optional<QString> chooseSpecialTable(const QStringList& tables,
                                                    const QString& present) = 0;

  virtual void focusNext() = 0;
  virtual void focusLessonName() = 0;
  virtual void focusStart() = 0;
  virtual void setBusy(bool busy) = 0;
};

}  // namespace tavoli
