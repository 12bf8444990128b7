// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "data/CurrentRecord.h"

// The judge: what a typed answer is worth. Pure functions; positions count from 1.
namespace tavoli {

/// How typed answers are compared.
struct ComparisonSettings {
  CompareMode compareMode = CompareMode::caseIgnored;
  bool compareFlag = true;    ///< blanks are ignored
  bool compareHyphen = true;  ///< hyphens are ignored
  bool operator==(const ComparisonSettings&) const = default;
};

/// The settings that stored conditions stand for.
ComparisonSettings comparisonSettings(CompareMode compareMode, bool compareFlag);

/// The four settings that can be chosen, in the order of their menu entries, with the entry's
/// caption and the text of the status panel.
struct ComparisonChoice {
  ComparisonSettings settings;
  QString caption;
  QString status;
};
const std::vector<ComparisonChoice>& comparisonChoices();

/// Where settings stand among the choices, from 0.
int comparisonChoiceOf(const ComparisonSettings& settings);

/// The verdicts, with the numbers that the messages of the drill use.
enum class Verdict {
  Right = 1,        ///< equal to the answer
  Variant = 2,      ///< equal to a variant of a sentence or a synonym of a word
  Wrong = 3,        ///< different
  MarkMissing = 4,  ///< only the ".", "?" or "!" at the end is missing
  WrongMark = 5     ///< only the ".", "?" or "!" at the end is another one
};

struct Comparison {
  Verdict ANScomp = Verdict::Wrong;
  QString typedAnswer;  ///< what was typed, outer blanks off
  /// The stretch of typedAnswer that differs, both ends included; it may lie behind its last
  /// character where something is missing there. Set for Wrong and WrongMark.
  int NGP = 0;
  int NGP2 = 0;
  /// Variant of a sentence that is only tolerated: its number in ExpandAnswers, from 1; else 0.
  int matchedVariant = 0;
  /// Whether a Variant counts as right. A synonym, or a variant with a literal substitution in it,
  /// is only tolerated: the answer proper is still to be learnt.
  bool accepted = false;
};

/// Judges what was typed for the k-th 小問, which must exist. Variants are expanded only when the
/// plain comparison failed.
Comparison COMP(const CurrentRecord& record, int k, const QString& typed,
                const ComparisonSettings& settings);

/// The text without blanks, and without hyphens where the settings ignore them.
QString NormaliseAnswer(const QString& text, const ComparisonSettings& settings);

/// The typed text tidied: the wave dash and the minus sign as the stored texts spell them,
/// full-width blanks made plain ones, outer blanks off, no doubled blank, no blank before a comma.
QString CleanTypedAnswer(const QString& typed);

/// Widens the stretch of a verdict Wrong that is a single blank by the characters on both sides, so
/// that there is something to see.
void widenBlank(Comparison& comparison);

}  // namespace tavoli
