// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

#include "data/Descent.h"

// Which of two copies of a learner's database came from the other.
namespace tavoli {

/// What a copy tells of its past. One that cannot be read counts as used.
struct CopyPast {
  /// Somebody has logged in with it: a copy as delivered holds nothing of a learner.
  bool used = true;
  std::optional<Descent> descent;
};

CopyPast pastOf(const QString& path);

enum class CopyRelation {
  Same,
  WorkOlder,
  PlacedOlder,
  Diverged,  ///< each holds changes that the other has not, or nobody can tell
};

CopyRelation compareCopies(const CopyPast& work, const CopyPast& placed, bool sameContent);

/// Whether `newer` holds every change that `older` does.
bool holdsAllOf(const Descent& newer, const Descent& older);

}  // namespace tavoli
