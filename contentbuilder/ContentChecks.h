// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"

namespace tavoli {

/// Adds what is wrong, or seldom meant, in the wording of the items and between them. Items that
/// have a problem already could not be read and are passed over.
void checkWording(const std::vector<ContentTable>& tables, Problems& problems, Warnings& warnings);

}  // namespace tavoli
