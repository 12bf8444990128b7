// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

#include "conditions/ConditionsScreen.h"
#include "conditions/LessonChoice.h"
#include "conditions/NumberField.h"
#include "conditions/PracticeConditions.h"
#include "data/Database.h"
#include "data/LearnerFiles.h"

namespace tavoli {

class Dialogs;
class Files;

/// What the rules of the conditions screen work with.
struct ConditionsServices {
  const Files& files;
  Dialogs& dialogs;
  QString standardFolder;  ///< the standard place of lesson files
  /// Counts a specialist dictionary's memory states again after it was chosen, given its name. The
  /// database is closed when it is called. May be left empty.
  std::function<void(const QString& table)> recount;
};

/// What every action on the conditions screen means, and what has to be right before a run starts.
/// The record that it works on belongs to the table of the course on show.
class ConditionsRules {
 public:
  ConditionsRules(const LearnerFiles& learner, CourseChoice& course, PracticeConditions& conditions,
                  const ConditionsServices& services);

  /// The screen is entered, at first or after a run: shows the course's conditions and the past
  /// ones. False when the database cannot be read; the learner has then been told.
  bool enter(ConditionsScreen& screen);

  void chooseCourse(Course COURSE);
  /// The learner wants another specialist dictionary.
  void chooseSpecialTable();
  void chooseMethod(SelMethod selMethod);
  void chooseStartMode(StartMode startMode);
  void chooseMemory(MemorySelect memorySelect);

  /// What the box of the specified start holds.
  void typeStart(const QString& text);
  /// A file is picked in a folder.
  void pickLesson(const QString& folder, const QString& name);
  /// The lesson's name is changed by typing; `folder` is the one that the picker shows.
  void typeLessonName(const QString& text, const QString& folder);

  /// See tavoli::typeNumber.
  void typeNumber(NumberField field, const QString& text);
  void leaveNumber(NumberField field);
  void stepNumber(NumberField field, int steps);
  void restoreReviewCycle();
  void restoreTargets();

  /// One of the listed past runs, from 0.
  void choosePastRun(int index);

  /// Checks everything before a run. Returns the key at which it starts, "000000" for the first
  /// item; nothing when the screen has to stay.
  std::optional<QString> next();

  const QString& standardFolder() const { return m_services.standardFolder; }

 private:
  enum class Loaded { Yes, NoTable, Failed };

  std::optional<Database> openStore();
  Loaded loadRecord();
  /// Goes to a course and shows its record; without its dictionary nothing is shown.
  Loaded switchCourse(Course COURSE);
  /// The same, asking for a dictionary where the course has none.
  Loaded changeCourse(Course COURSE);
  Loaded offerSpecialTables();
  Loaded useSpecialTable(const QString& table);
  void showRecord();
  void showNumbers();
  void readLesson();
  void fillStarts();
  void setStart(const QString& text);
  void restoreSpecifiedStart();
  void tellBrokenStart();
  /// Whether the kind of item is the last run's, and, for a lesson, its file too.
  bool sameMethodAsLastRun() const;
  bool goesOnFromLastRun() const;
  std::optional<QString> specifiedStart();

  const LearnerFiles& m_learner;
  CourseChoice& m_course;
  PracticeConditions& m_conditions;
  ConditionsServices m_services;
  ConditionsScreen* m_screen = nullptr;  ///< the one that was entered
  LessonChoice m_lesson;

  /// The record as it was loaded: the choices of the last run with this course.
  PracticeConditions m_snapshot;
  SelMethod m_prevSelMethod{};
  /// A start at a place of the last run was refused.
  bool m_startBroken = false;
  QString m_shownTable;  ///< the specialist dictionary on show
  QString m_startText;   ///< what the box of the specified start holds
  QStringList m_pastConditions;
};

}  // namespace tavoli
