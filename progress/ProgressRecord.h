// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "progress/ProgressCounters.h"
#include "progress/RunClock.h"

// The learner's progress as the tables hold it: 345 characters of fixed positions, counted from 1.
//   1    8  user id, blank-padded       9  1  "2"
//   10 102  the first number of every counter; 112 and 214 the second and the third ones
//   316 15  begin of the last run, yyyy/mm/dd and hh:mm; 331 15 its end
// A block holds, each in the order 中学, 高校, 専門: 記憶単熟 and 記憶文 in 5 digits, 時間 in 9,
// 回数単熟, 回数文 and 回数 in 5.
namespace tavoli {

/// The first of the 336 characters that the history of runs repeats.
inline constexpr int progressNumbersFrom = 10;
/// The first character behind the counters.
inline constexpr int progressTimesFrom = 316;

/// Numbers that have no room in their places are written as the largest that has.
QString buildProgressRecord(const QString& userId, const ProgressCounters& counters,
                            const RunClock& times);

struct StoredProgress {
  ProgressCounters counters;
  QDateTime previousStart;  ///< when the last run began; invalid where the text is no time
};

/// What the text is too short for, or what is no number, becomes 0.
StoredProgress parseProgressRecord(const QString& progressRecord);

}  // namespace tavoli
