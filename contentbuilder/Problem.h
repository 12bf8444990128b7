// SPDX-License-Identifier: GPL-3.0-or-later
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

/// What is seldom meant, but may be: it can be accepted by its kind and key.
struct Warning {
  Problem problem;
  QString kind;  ///< holds no blank
  QString key;

  QString name() const { return kind + u' ' + key; }
};

using Warnings = std::vector<Warning>;

}  // namespace tavoli
