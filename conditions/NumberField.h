// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "conditions/PracticeConditions.h"

// The number fields of the conditions screen: what they show, and what becomes of an entry. A field
// never holds a number for which the record has no room.
namespace tavoli {

enum class NumberField {
  LevelFrom,
  LevelTo,
  ReviewCycle,
  MaxLoadWords,
  MaxLoadSent,
  TargetSentA,
  TargetSentB,
  TargetWordA,
  TargetWordB
};
inline constexpr int numberFieldCount = 9;

/// The field's value as it is shown.
QString numberText(NumberField field, const PracticeConditions& conditions);

/// Takes what stands in the field after a key into the conditions, and returns what is to stand
/// there. A number beyond its bounds, or what can never become a number, is undone at once; the
/// beginning of a number stays until the field is left, and then numberText() stands there again.
/// 最大読込数 is brought to its bounds instead, and what is no number is level 0 or 9.
QString typeNumber(NumberField field, const QString& text, PracticeConditions& conditions);

/// Whether a text as a whole would be taken, if need be brought to its bounds.
bool isNumberFor(NumberField field, const QString& text);

/// The value after so many presses of the field's arrows, up counted positive.
void stepNumber(NumberField field, int steps, PracticeConditions& conditions);

/// The bounds in words, for one who typed something else.
QString numberBounds(NumberField field);

}  // namespace tavoli
