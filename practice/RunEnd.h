#pragma once

#include <QStringList>

#include <memory>

#include "conditions/AutoPlaySettings.h"
#include "conditions/PracticeConditions.h"
#include "data/LearnerFiles.h"
#include "practice/LearningTables.h"
#include "practice/PracticeSet.h"

namespace tavoli {

class Clock;
class Dialogs;
class Files;

/// The memory state of a whole item, summed up from its 小問.
struct ItemState {
  QChar state = memoryうろ覚え;
  /// Codes that are no memory state, each with the guard text that names it; empty on sound data.
  QStringList complaints;
};
ItemState itemState(const CurrentRecord& record, const QString& key);

/// How a run ended.
struct RunResult {
  int POS;  ///< where
  const CourseChoice& course;
  PracticeConditions& conditions;
  const AutoPlaySettings& settings;
  /// Another lesson is to follow: the working texts stay.
  bool backToConditions = false;
};

/// Stores what a run has changed when it is over.
class RunEnd {
 public:
  RunEnd(const LearnerFiles& learner, Files& files, const Clock& clock, Dialogs& dialogs);

  /// Writes all shown items, the conditions, the course and the settings in one transaction, closes
  /// the tables, adds to the past conditions and carries the files home where they are placed
  /// elsewhere. When the tables cannot be written the learner may try
  /// again; false when nothing was stored in the end.
  bool closeRun(std::unique_ptr<LearningTables> tables, PracticeSet& set, const RunResult& run);

 private:
  bool WriteBackItem(LearningTables& tables, PracticeItem& item);
  bool updateDictionaryRow(TableCursor& rows, const PracticeItem& item);
  void copyHome(bool keepTexts);

  const LearnerFiles& m_learner;
  Files& m_files;
  const Clock& m_clock;
  Dialogs& m_dialogs;
  QStringList m_complaints;
};

}  // namespace tavoli
