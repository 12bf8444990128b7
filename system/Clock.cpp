// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/Clock.h"

#include <ctime>

namespace tavoli {

qint64 SystemClock::milliseconds() const {
  constexpr qint64 perSecond = 1000;
  constexpr qint64 nanosecondsPerMillisecond = 1000000;
  timespec time{};
  clock_gettime(CLOCK_BOOTTIME, &time);
  return time.tv_sec * perSecond + time.tv_nsec / nanosecondsPerMillisecond;
}

}  // namespace tavoli
