// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"

namespace tavoli {

/// A line of a source, counted from 1.
struct SourceLine {
  int number = 0;
  QString text;
};

/// The lines of a source; those that begin with "#" are headings.
struct SourceText {
  QString name;
  std::vector<SourceLine> lines;
  std::vector<SourceLine> headings;
};

/// Nothing, and a problem, when the file is not UTF-8.
std::optional<SourceText> readSource(const SourceFile& file, Problems& problems);

}  // namespace tavoli
