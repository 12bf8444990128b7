// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "progress/RunClock.h"

namespace tavoli {

class Clock;
class PracticeScreen;

/// Takes the gaps in which the learner was away out of the learning time.
class RestTime {
 public:
  RestTime(RunClock& run, const Clock& clock, PracticeScreen& screen);

  /// The run begins now.
  void begin();
  /// To be called at every input: a gap of a minute or more since the last one was rest. Shows the
  /// rest and elapsed time.
  void takeRestTime();

 private:
  RunClock& m_run;
  const Clock& m_clock;
  PracticeScreen& m_screen;
};

}  // namespace tavoli
