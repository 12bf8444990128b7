#pragma once

#include <QString>

#include <vector>

namespace tavoli {

/// A mistake in the content: where it stands, and a sentence that says what to do about it.
struct Problem {
  QString file;
  int line = 1;
  QString message;
};

using Problems = std::vector<Problem>;

}  // namespace tavoli
