// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>

#include "conditions/PracticeConditions.h"
#include "practice/LearningTables.h"
#include "practice/PracticeSet.h"

namespace tavoli {

class Dialogs;
class Files;
class LoadProgress;
class Random;

/// Makes the practice set of a run out of the conditions and the learner's tables.
class PracticeSetLoader {
 public:
  PracticeSetLoader(LearningTables& tables, const CourseChoice& course,
                    const PracticeConditions& conditions, const Files& files, Random& random,
                    Dialogs& dialogs, LoadProgress& progress);

  /// `startKey` is where the run starts: a word, a sentence entry, or "000000" for the first item.
  PracticeSet LoadPracticeSet(const QString& startKey);

 private:
  void loadLesson(const QString& startKey);
  void LoadWords(const QString& startKey);
  void LoadSentences(const QString& startKey);
  bool goesOn(int number);
  void beginProgress(int loadTotal);
  void endProgress();

  /// Appends the present row of a table if the conditions admit it; true when they did.
  bool appendSentence();
  bool appendWord(int place);
  bool appendIfKept(PracticeItem item);
  /// The same for a row that a lesson names: one that was named before comes once more.
  void appendNamed(TableCode itemTable, const QString& key);
  void appendLessonWord(const QString& line);
  bool KeepIfConditionsMet(const PracticeItem& item) const;

  LearningTables& m_tables;
  const CourseChoice& m_course;
  const PracticeConditions& m_conditions;
  const Files& m_files;
  Random& m_random;
  Dialogs& m_dialogs;
  LoadProgress& m_progress;
  bool m_progressShown = false;
  PracticeSet m_set;
  QHash<std::pair<TableCode, QString>, int> m_named;  ///< items by table and key
};

/// The line, from 1, at which a lesson run starts: the one that `startKey` names, but never the
/// last line; else the first.
int lessonStartLine(const QStringList& lines, const QString& startKey);

}  // namespace tavoli
