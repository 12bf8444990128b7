// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/RestTime.h"

#include <cmath>

#include "practice/PracticeScreen.h"
#include "system/Clock.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int restFrom = 60;
constexpr int secondsPerMinute = 60;

QString minutes(qint64 seconds) {
  return QString::number(std::llround(static_cast<double>(seconds) / secondsPerMinute)) + u"分"_s;
}

}  // namespace

RestTime::RestTime(RunClock& run, const Clock& clock, PracticeScreen& screen)
    : m_run(run), m_clock(clock), m_screen(screen) {}

void RestTime::begin() {
  m_run.開始時刻 = m_clock.now();
  m_run.restClock = m_run.開始時刻;
  m_screen.showStatus(StatusPanel::StartTime,
                      u"開始時刻　"_s + m_run.開始時刻.toString(u"HH:mm"_s));
}

void RestTime::takeRestTime() {
  const QDateTime now = m_clock.now();
  const auto gap = static_cast<int>(m_run.restClock.secsTo(now));
  if (gap >= restFrom) m_run.休憩時間 += gap;
  m_run.restClock = now;
  m_screen.showStatus(StatusPanel::RestTime, u"休憩時間  "_s + minutes(m_run.休憩時間));
  m_screen.showStatus(StatusPanel::ElapsedTime,
                      u"経過時間  "_s + minutes(m_run.開始時刻.secsTo(now)));
}

}  // namespace tavoli
