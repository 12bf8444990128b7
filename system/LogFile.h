// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

/// Has every message of the program's own categories ("tavoli.*") added to a log file as one line:
/// time, category, text. File and folder are made when there is something to write, and are their
/// owner's alone; a file of 256 KiB becomes the one with ".1" behind its name, in the place of the
/// last such. What cannot be written is dropped: no learner is to hear of it. All other messages go
/// where they went.
///
/// Nothing that a learner has typed may stand in a message of these categories.
void writeLogTo(const QString& path);

/// The log's place below the folder where a user's programs keep their state.
QString logFilePath();

}  // namespace tavoli
