// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "contentbuilder/SourceText.h"
#include "data/CurrentRecord.h"

// The words files: one dictionary row a line.
namespace tavoli {

/// The first line of every words file.
extern const QString wordsHeader;

/// The rows of a words file. With a new problem they are not fit to be stored. `places`: the keys
/// of the table's other files; those of this one are added.
std::vector<ContentRow> parseWords(const SourceText& source, KeyPlaces& places, Problems& problems);

/// The line of a word; `record` is its record taken apart.
QString wordSource(const ContentRow& row, const CurrentRecord& record);

}  // namespace tavoli
