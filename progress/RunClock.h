// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

namespace tavoli {

/// The times of a run, in the state that all screens share.
struct RunClock {
  QDateTime 開始時刻;
  QDateTime 終了時刻;
  /// The last moment of activity; a long gap from here on is rest.
  QDateTime restClock;
  int 休憩時間 = 0;  ///< seconds
};

}  // namespace tavoli
