// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "conditions/PracticeConditions.h"
#include "progress/RunClock.h"

namespace tavoli {

/// The line that the learner's file TavoHistory<id> gets for a run, fixed positions without a line
/// break: user id (8), "2", the course's dictionary (11), begin and end of the run (yyyy/mm/dd and
/// hh:mm each), the seconds of rest (5), the 336 characters of the progress record from its numbers
/// on, and the conditions record from its method on.
QString historyLine(const QString& progressRecord, const CourseChoice& course,
                    const RunClock& times, const PracticeConditions& conditions);

}  // namespace tavoli
