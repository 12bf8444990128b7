// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "app/Module1.h"
#include "app/ProgramEnd.h"
#include "app/Terminal.h"
#include "app/TerminalConditions.h"
#include "conditions/ConditionsByName.h"
#include "home/WorkingCopy.h"
#include "practice/PracticeLoop.h"
#include "system/Clock.h"
#include "system/Files.h"
#include "system/Random.h"

namespace tavoli {

/// What the command line says about a drill in the terminal.
struct TerminalOptions {
  std::optional<QString> user;
  std::optional<QString> password;
  NamedValues settings;  ///< conditions
};

/// The drill for people without a display, and for scripts: the same rules as in the windows, lines
/// in and areas out. A line is what is typed before Enter, behind what the answer box begins with;
/// a line that begins with ":" is a key, one that begins with "::" an answer that begins with ":".
/// A "~" is taken as the "～" of idioms.
class TerminalDrill {
 public:
  TerminalDrill(Module1& module, const TerminalOptions& options, Paper& paper);

  /// The whole way from login to the end of the run; returns the program's exit status.
  int run();

 private:
  bool login(Login& login, TerminalLogin& screen);
  /// The password that came with the program's start, or that a learner at a terminal types;
  /// nothing at the end of the input.
  std::optional<QString> password();
  std::optional<QString> askPassword();
  /// The tables of the progress screen.
  void showProgress();
  /// The way over the conditions screen, as the command line says; returns the key at which the
  /// run starts. Nothing when the run cannot start, `status` is then the exit status.
  std::optional<QString> chooseConditions(int& status);
  int practise(const QString& startKey);
  /// Reads and passes on what the learner enters until the run has ended.
  void drive(PracticeLoop& loop, TerminalPractice& screen, TerminalReview& reviewScreen);
  void pressInPractice(PracticeLoop& loop, TerminalPractice& screen, const QString& key);
  void pressInReview(PracticeLoop& loop, TerminalReview& screen, const QString& key);

  Module1& m_module;
  const TerminalOptions& m_options;
  Paper& m_paper;
  SystemClock m_clock;
  SystemRandom m_random;
  SystemFiles m_files;
  Terminal m_terminal;
  TerminalSpeaker m_speaker;
  TerminalDialogs m_dialogs;
  TerminalConditions m_conditions;
  WorkingCopy m_workingCopy;
  ProgramEnd m_end;
};

}  // namespace tavoli
