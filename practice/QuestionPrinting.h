// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/LearnerFiles.h"
#include "practice/QuestionRequests.h"

namespace tavoli {

class Clock;
class Paper;

/// Prints what was requested. Where no printer takes it, it becomes a PDF file in the learner's
/// folder. The requests are gone only when one of the two has them. Returns what the learner is to
/// be told, a box each.
QStringList printRequests(QuestionRequests& requests, const LearnerFiles& learner, Paper& paper,
                          const Clock& clock);

}  // namespace tavoli
