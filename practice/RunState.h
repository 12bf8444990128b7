// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "judge/Comparison.h"
#include "practice/ShownItem.h"

namespace tavoli {

/// Where a run stands, and what the learner has chosen for it. The loop alone writes it.
struct RunState {
  PracticeSet& set;
  CourseChoice course;
  PracticeConditions conditions;
  ComparisonSettings comparison;
  ShownItem shown;
  int timeUpSound = 2;  ///< when the target time passes: 0 none, 1 a beep, 2 the spoken sentence
};

}  // namespace tavoli
