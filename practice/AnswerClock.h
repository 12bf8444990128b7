// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <optional>

namespace tavoli {

class AnswerScreen;
class Clock;
class Speaker;

/// The clock of one answer against its target time.
class AnswerClock {
 public:
  AnswerClock(const Clock& clock, AnswerScreen& screen, Speaker& speaker);

  /// Begins again; the answer has `targetSeconds`.
  void startAnswerTimer(double targetSeconds);
  /// Goes on from the last start, towards another target.
  void resume(double targetSeconds);
  /// Stops, and leaves the strip as it is.
  void stop() { m_running = false; }
  /// Stops, and empties the strip.
  void clear();
  /// Once a second. When the target time passes it sounds, once: `timeUpSound` 0 not at all, 1 a
  /// beep, 2 the spoken sentence.
  void tick(int timeUpSound);

  bool running() const { return m_running; }
  /// The target time had passed at the last tick.
  bool timeOver() const { return m_timeOver; }

 private:
  void showTime();

  const Clock& m_clock;
  AnswerScreen& m_screen;
  Speaker& m_speaker;
  std::optional<qint64> m_answerClock;  ///< when the answer began, in milliseconds
  double m_targetSeconds = 0;
  bool m_running = false;
  bool m_timeOver = false;
  bool m_timeUpArmed = false;
};

}  // namespace tavoli
