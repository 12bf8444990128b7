#pragma once

#include <QDateTime>

#include "practice/RunState.h"

namespace tavoli {

class Clock;
class PracticeScreen;
class Speaker;

/// The clock of one answer against its target time. Past the target a right answer earns no
/// promotion.
class AnswerClock {
 public:
  AnswerClock(RunState& state, const Clock& clock, PracticeScreen& screen, Speaker& speaker);

  /// Begins anew for the present 小問.
  void startAnswerTimer();
  /// Goes on from the last start, with the present 小問's target.
  void resume();
  /// Stops, and leaves the strip as it is.
  void stop() { m_running = false; }
  /// Stops, and empties the strip.
  void clear();
  /// Once a second.
  void tick();

  bool running() const { return m_running; }
  /// 0 none, 1 a beep, 2 the spoken sentence.
  int timeUpSound = 2;

 private:
  double targetSeconds() const;

  RunState& m_state;
  const Clock& m_clock;
  PracticeScreen& m_screen;
  Speaker& m_speaker;
  QDateTime m_answerClock;
  double m_targetSeconds = 0;
  bool m_running = false;
  bool m_timeUpArmed = false;
};

}  // namespace tavoli
