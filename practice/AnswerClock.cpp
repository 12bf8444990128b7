// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/AnswerClock.h"

#include "practice/AnswerScreen.h"
#include "speech/Speaker.h"
#include "speech/SpeechOccasions.h"
#include "system/Clock.h"

using namespace Qt::StringLiterals;

namespace tavoli {

AnswerClock::AnswerClock(const Clock& clock, AnswerScreen& screen, Speaker& speaker)
    : m_clock(clock), m_screen(screen), m_speaker(speaker) {}

void AnswerClock::startAnswerTimer(double targetSeconds) {
  m_answerClock = m_clock.milliseconds();
  m_timeUpArmed = false;
  resume(targetSeconds);
  showTime();
}

void AnswerClock::resume(double targetSeconds) {
  m_targetSeconds = targetSeconds;
  m_running = m_answerClock.has_value();
}

void AnswerClock::clear() {
  stop();
  m_screen.showTime(AnswerTime());
}

void AnswerClock::showTime() {
  constexpr int perSecond = 1000;
  const auto elapsed = static_cast<int>((m_clock.milliseconds() - *m_answerClock) / perSecond);
  m_timeOver = elapsed >= m_targetSeconds;
  m_timeUpArmed = m_timeUpArmed || !m_timeOver;
  m_screen.showTime({true, elapsed, m_timeOver ? 1.0 : elapsed / m_targetSeconds});
}

void AnswerClock::tick(int timeUpSound) {
  if (!m_running) return;
  showTime();
  if (!m_timeOver || !m_timeUpArmed) return;
  m_timeUpArmed = false;
  const TimeUp sound = TimeUpSound(true, timeUpSound);
  if (sound.beep) m_speaker.beep();
  if (sound.utterance) m_speaker.speak(*sound.utterance);
}

}  // namespace tavoli
