// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

#include "app/Login.h"
#include "app/Module1.h"
#include "app/ProgramEnd.h"
#include "app/screens/TAVO1.h"
#include "conditions/ConditionsRules.h"
#include "conditions/screens/TAVO2.h"
#include "home/WorkingCopy.h"
#include "practice/PracticeRun.h"
#include "practice/screens/TAVO3.h"
#include "practice/screens/TAVO4.h"
#include "progress/screens/TAVOstate.h"
#include "speech/Speaker.h"
#include "system/Clock.h"
#include "system/Files.h"
#include "system/Random.h"
#include "system/screens/MessageBoxes.h"
#include "system/screens/PagedPaper.h"

namespace tavoli {

/// A run and its windows.
struct PracticeStage {
  PracticeStage(Module1& module, const RunServices& services)
      : run(module.learner, module.course, module.conditions, module.clock, module.progress,
            services) {}

  PracticeRun run;
  TAVO3 tavo3;
  TAVO4 tavo4;
};

/// Which window follows which: login, progress, conditions, practice with its reviews, and back or
/// out.
class WindowFlow {
 public:
  WindowFlow(Module1& module, const QString& version);

  /// Shows the login and runs until the last window is closed; returns the program's exit status.
  int run();

 private:
  void showState();
  void showConditions();
  void startPractice(const QString& startKey);
  void endPractice();
  void endProgram();

  Module1& m_module;
  SystemFiles m_files;
  SystemClock m_clock;
  SystemRandom m_random;
  SilentSpeaker m_speaker;
  MessageBoxes m_dialogs;
  PagedPaper m_paper;
  WorkingCopy m_workingCopy;
  ProgramEnd m_end;
  // Rules stand before their windows, which go first.
  Login m_login;
  ConditionsRules m_conditions;
  std::unique_ptr<PracticeStage> m_practice;
  std::unique_ptr<TAVO1> m_tavo1;
  std::unique_ptr<TAVOstate> m_state;
  std::unique_ptr<TAVO2> m_tavo2;
};

}  // namespace tavoli
