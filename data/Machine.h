// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

class Files;

/// Holds a machine's id, in its working folder.
inline const QString machineFileName = QStringLiteral("TavoMachine.txt");

/// The machine that a working folder belongs to: a random id that the folder was given, since
/// hosts change their names and share them. Empty where there is none.
QString machineOf(const QString& folder);

/// Gives the folder an id unless it has one. False when it cannot be written.
[[nodiscard]] bool makeMachine(Files& files, const QString& folder);

/// A random text of hexadecimal digits, four bits each.
QString randomId(int digits);

}  // namespace tavoli
