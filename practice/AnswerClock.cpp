#include "practice/AnswerClock.h"

#include "practice/PracticeScreen.h"
#include "speech/Speaker.h"
#include "system/Clock.h"

namespace tavoli {

AnswerClock::AnswerClock(RunState& state, const Clock& clock, PracticeScreen& screen,
                         Speaker& speaker)
    : m_state(state), m_clock(clock), m_screen(screen), m_speaker(speaker) {}

double AnswerClock::targetSeconds() const {
  const PracticeConditions& c = m_state.conditions;
  if (m_state.record.sentence)
    return c.targetSentA * static_cast<double>(m_state.record.text(m_state.POS1).size()) +
           c.targetSentB;
  return c.targetWordA * static_cast<double>(m_state.record.英語.size()) + c.targetWordB;
}

void AnswerClock::startAnswerTimer() {
  m_answerClock = m_clock.now();
  m_state.timeOver = false;
  m_timeUpArmed = false;
  resume();
  tick();
}

void AnswerClock::resume() {
  m_targetSeconds = targetSeconds();
  m_running = m_answerClock.isValid();
}

void AnswerClock::clear() {
  stop();
  m_screen.showTime(AnswerTime());
}

void AnswerClock::tick() {
  if (!m_running) return;
  const auto elapsed = static_cast<int>(m_answerClock.secsTo(m_clock.now()));
  m_state.timeOver = elapsed >= m_targetSeconds;
  m_screen.showTime(
      {true, elapsed, m_state.timeOver ? 1.0 : std::max(0.0, elapsed / m_targetSeconds)});
  if (!m_state.timeOver) {
    m_timeUpArmed = elapsed >= 0;
    return;
  }
  if (m_timeUpArmed && timeUpSound == 1) m_speaker.beep();
  if (m_timeUpArmed && timeUpSound == 2) m_speaker.say(QStringLiteral("Time is up."));
  m_timeUpArmed = false;
}

}  // namespace tavoli
