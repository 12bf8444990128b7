#pragma once

#include <QString>

#include <memory>

#include "app/Login.h"
#include "app/Module1.h"
#include "app/ProgramEnd.h"
#include "app/screens/TAVO1.h"
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
  void leave();

  Module1& m_module;
  SystemFiles m_files;
  SystemClock m_clock;
  SystemRandom m_random;
  SilentSpeaker m_speaker;
  MessageBoxes m_dialogs;
  PagedPaper m_paper;
  WorkingCopy m_workingCopy;
  ProgramEnd m_end;
  std::unique_ptr<TAVO1> m_tavo1;
  std::unique_ptr<Login> m_login;
  std::unique_ptr<TAVOstate> m_state;
  std::unique_ptr<TAVO2> m_tavo2;
  std::unique_ptr<PracticeRun> m_run;
  std::unique_ptr<TAVO3> m_tavo3;
  std::unique_ptr<TAVO4> m_tavo4;
};

}  // namespace tavoli
