// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"

namespace tavoli {

/// Adds the entries of lesson files that name no item, or that no lesson file can hold.
void checkLessons(const std::vector<SourceFile>& lessons, const std::vector<ContentTable>& tables,
                  Problems& problems);

}  // namespace tavoli
