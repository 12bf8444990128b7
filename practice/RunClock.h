#pragma once

#include <QDateTime>

namespace tavoli {

class Clock;
class PracticeScreen;

/// The times of a run, in the state that all screens share.
struct RunClock {
  QDateTime 開始時刻;
  QDateTime 終了時刻;
  /// The last moment of activity; a long gap from here on is rest.
  QDateTime restClock;
  int 休憩時間 = 0;  ///< seconds
};

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
