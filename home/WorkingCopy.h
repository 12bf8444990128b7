// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "home/CopyComparison.h"
#include "system/FileLock.h"

namespace tavoli {

class Clock;
class Dialogs;
class Files;
struct LearnerFiles;

/// The copies that a learner works on, of the database and of the two texts, and their way to and
/// from the place where the learner's data lie. Nobody else carries them. Nothing that one side
/// holds is ever lost: what is newer or of a descent of its own is kept under a dated name.
class WorkingCopy {
 public:
  /// Whether the working texts are still wanted; if not, the next login fetches them again.
  enum class Texts { Stay, Go };

  WorkingCopy(const LearnerFiles& learner, Files& files, const Clock& clock, Dialogs& dialogs);

  /// Keeps the working copy for this program and has it hold what the placed database does. False
  /// when that cannot be; the learner has then been told. For a learner without files it does
  /// nothing.
  [[nodiscard]] bool fetch();
  /// Has the working texts hold every line of the placed ones.
  void fetchTexts();

  /// Carries the database alone home.
  [[nodiscard]] bool carryDatabaseHome();
  /// Carries everything home when a run is over. What does not get home stays here, and the learner
  /// is told.
  void carryHome(Texts texts);

  /// The program ends without a run: what did not get home so far is tried once more.
  void leave();
  /// Other programs may have the working copy.
  void letGo();

 private:
  [[nodiscard]] bool keepForThisProgram();
  [[nodiscard]] bool offerToTakeOver();
  [[nodiscard]] bool fetchDatabase();
  /// Has a working text hold every line of the placed one. False when that could not be done.
  [[nodiscard]] bool fetchText(const QString& placed, const QString& work, qsizetype most);
  CopyRelation relation() const;
  [[nodiscard]] bool keepNewerWork(CopyRelation relation);
  [[nodiscard]] bool keepChangedPlacedCopy();
  [[nodiscard]] bool carryTextsHome(Texts texts);
  [[nodiscard]] bool carryText(const QString& work, const QString& placed, qsizetype most);
  bool fail(const QString& message);
  /// In a shared folder anybody may have laid one: it is not used, and the learner is told.
  bool isLink(const QString& placed);

  const LearnerFiles& m_learner;
  Files& m_files;
  const Clock& m_clock;
  Dialogs& m_dialogs;
  FileLock m_lock;
};

}  // namespace tavoli
