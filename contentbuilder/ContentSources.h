// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"

// The content folder as a whole.
namespace tavoli {

/// The name of a dictionary's source, where one file holds it all.
QString wordsFileName(const QString& table);
/// The same for a course's sentences.
QString sentencesFileName(const QString& course);
/// The table that a source belongs to; empty when it is none.
QString tableOfSource(const QString& file);

/// Reads all sources into the tables they become: BDIC, JTDIC and STDIC, then the specialist
/// dictionaries in the order of the files, each with the layout of its sources. Every problem is
/// named, those of a file by line; with any, the tables are not fit to be stored.
std::vector<ContentTable> readContent(const std::vector<SourceFile>& files, Problems& problems);

}  // namespace tavoli
