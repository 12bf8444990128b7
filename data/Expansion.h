// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include "data/CurrentRecord.h"

namespace tavoli {

/// One alternative form of an answer.
struct Variant {
  QString text;
  /// A literal substitution took part, so the learner is still to learn the answer proper.
  bool literal = false;
};

/// A stretch of an answer, positions from 1 and both included, with what may take its place. One
/// that ends before it starts takes nothing: its text is put in before `start`.
struct Substitution {
  enum class Kind { Omission, Coded, Literal };
  Kind kind;
  int start = 0;
  int end = 0;
  int code = 0;  ///< Coded only: the entry of the contraction table
  QString text;
};

/// The substitutions of an answer's packed alternatives, in stored order: the omission, the coded
/// ones, the literal ones.
std::vector<Substitution> substitutionsOf(const SubQuestion& answer);

inline constexpr int maxVariants = 100;
inline constexpr int maxExpandedSubstitutions = 10;

/// All forms of a sentence's answer but the answer itself: every combination of its first ten
/// substitutions that do not overlap. First each substitution alone in stored order, then the
/// combinations. More than 100 would be none: the result is then empty.
std::vector<Variant> ExpandAnswers(const SubQuestion& answer);

}  // namespace tavoli
