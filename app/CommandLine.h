// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "app/TerminalDrill.h"

namespace tavoli {

struct CommandLine {
  bool terminal = false;
  QString applicationFolder;  ///< empty for the usual one
  TerminalOptions terminalOptions;
  /// A text to print (help, version) before an orderly end; nothing else is to be done then.
  QString information;
  /// What is wrong with the arguments; empty when nothing is.
  QString complaint;
};

/// Reads the program's arguments, the program's own name first.
CommandLine parseCommandLine(const QStringList& arguments, const QString& version);

}  // namespace tavoli
