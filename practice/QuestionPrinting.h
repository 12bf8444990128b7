#pragma once

#include "data/LearnerFiles.h"
#include "practice/QuestionRequests.h"

namespace tavoli {

class Clock;
class Dialogs;
class Paper;

/// Prints what was requested. Where no printer takes it, it becomes a PDF file in the learner's
/// folder, and the learner is told where. The requests are gone only when one of the two has them.
void printRequests(QuestionRequests& requests, const LearnerFiles& learner, Paper& paper,
                   const Clock& clock, Dialogs& dialogs);

}  // namespace tavoli
