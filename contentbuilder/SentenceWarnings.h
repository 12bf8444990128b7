// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "data/CurrentRecord.h"

namespace tavoli {

/// What is seldom meant in a sentence; `record` is the row's record taken apart.
Warnings sentenceWarnings(const ContentRow& row, const CurrentRecord& record);

}  // namespace tavoli
