// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Module1.h"

namespace tavoli {

class Dialogs;
class PracticeRun;
class WorkingCopy;

/// What a run left behind.
struct RunOver {
  bool stored = false;
  bool toConditions = false;  ///< another lesson is to follow
};

/// What comes when a run, or the program, is over.
class ProgramEnd {
 public:
  ProgramEnd(Module1& module, WorkingCopy& workingCopy, Dialogs& dialogs)
      : m_module(module), m_workingCopy(workingCopy), m_dialogs(dialogs) {}

  /// Stores a run whose end was confirmed, has the files carried home and what was requested
  /// printed, and tells what there is to tell. A run that is not stored in the end changes nothing.
  RunOver endRun(PracticeRun& run);
  /// The program ends without a run: the working copy is left as it was found.
  void leave();

 private:
  void tell(const QStringList& notices);

  Module1& m_module;
  WorkingCopy& m_workingCopy;
  Dialogs& m_dialogs;
};

}  // namespace tavoli
