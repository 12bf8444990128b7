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

/// The lines of a source but those that begin with "#".
struct SourceText {
  QString name;
  std::vector<SourceLine> lines;
};

/// Nothing, and a problem, when the file is not UTF-8.
std::optional<SourceText> readSource(const SourceFile& file, Problems& problems);

}  // namespace tavoli
