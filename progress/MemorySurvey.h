// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>

#include "progress/ProgressCounters.h"

namespace tavoli {

class Database;
class Dialogs;

/// What the survey asks of the screen that shows the figures.
class SurveyScreen {
 public:
  virtual ~SurveyScreen() = default;
  /// A table is being counted, or no longer.
  virtual void setBusy(bool busy) = 0;
  /// Shows the figures again.
  virtual void DispAchieve() = 0;
  /// Brings the page with the tables over all courses to the front.
  virtual void showTables() = 0;
  /// Lets the learner choose one of the specialist dictionaries; nothing when none is wanted.
  virtual std::optional<QString> chooseSpecialTable(const QStringList& tables) = 0;
};

/// Counts the tables of the learner's database again on request. The figures are stored with the
/// next run.
class MemorySurvey {
 public:
  /// `specialTable` is the specialist dictionary in use; a survey of one makes it that.
  MemorySurvey(const QString& dbFileWork, ProgressCounters& counters, QString& specialTable,
               Dialogs& dialogs, SurveyScreen& screen);

  /// Asks, and on Yes counts the dictionary of 中学 or 高校.
  void surveyWords(Level level);
  /// The same for the sentences of all levels.
  void surveySentences();
  /// The same for a specialist dictionary that is chosen first; tells when there is none of that
  /// name.
  void surveySpecial();

 private:
  /// Asks, and on Yes counts with `count`; when that fails the figures stay what they were.
  void survey(const std::function<bool(const Database&)>& count);

  const QString& m_dbFileWork;
  ProgressCounters& m_counters;
  QString& m_specialTable;
  Dialogs& m_dialogs;
  SurveyScreen& m_screen;
};

}  // namespace tavoli
