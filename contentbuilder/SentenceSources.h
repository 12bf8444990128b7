// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "contentbuilder/SourceText.h"
#include "data/Courses.h"
#include "data/CurrentRecord.h"

// The sentences files: one row of BDIC a block.
namespace tavoli {

/// The rows of a sentences file. With a new problem they are not fit to be stored.
std::vector<ContentRow> parseSentences(const SourceText& source, const CourseFacts& course,
                                       KeyPlaces& places, Problems& problems);

/// The block of a sentence, without an empty line around it; `record` is its record taken apart.
QString sentenceSource(const ContentRow& row, const CurrentRecord& record);

}  // namespace tavoli
