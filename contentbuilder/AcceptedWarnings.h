// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"

namespace tavoli {

/// Takes out of `warnings` what the lists accept: each line of them is a warning's kind, a blank
/// and its key. A line that accepts nothing becomes a warning itself. Lists that are not UTF-8 are
/// added to `problems`.
void takeAccepted(const std::vector<SourceFile>& lists, Warnings& warnings, Problems& problems);

}  // namespace tavoli
