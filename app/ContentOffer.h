// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contentbuilder/Problem.h"

namespace tavoli {

class Clock;
class Database;
class Dialogs;
class Files;
class WorkingCopy;
struct Module1;

/// Offers a learner the content that came with the program, when it is newer than what the learner
/// has. A learner who does not want it is not asked for the same content again.
class ContentOffer {
 public:
  /// `workingCopy` is that of the learner in `module`, and kept for this program.
  ContentOffer(const Module1& module, WorkingCopy& workingCopy, Files& files, const Clock& clock,
               Dialogs& dialogs);

  /// Whether the learner with this database is to be asked.
  bool isDue(Database& learner) const;
  /// Asks; true for Yes. No is noted in the learner's database, which must not be open meanwhile.
  bool ask();
  /// Brings the content into the learner's database, which must not be open meanwhile, and carries
  /// it home. When that cannot be done everything stays as it was. The learner is told what did not
  /// come about.
  void takeIn();

 private:
  void tellUntouched(const Problems& untouched);

  const Module1& m_module;
  WorkingCopy& m_workingCopy;
  Files& m_files;
  const Clock& m_clock;
  Dialogs& m_dialogs;
};

}  // namespace tavoli
