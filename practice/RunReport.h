// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "practice/PracticeScreen.h"
#include "practice/RunState.h"
#include "progress/ProgressCounters.h"

namespace tavoli {

/// What has been done in a run so far: the finished items in words and in numbers.
class RunReport {
 public:
  /// `before` is what was counted before this run.
  explicit RunReport(const ProgressCounters& before) : m_before(before), m_progress(before) {}

  /// Takes the present item of the run down as finished.
  void finish(const RunState& state);

  const QStringList& runLog() const { return m_runLog; }
  RunCounts counts() const;
  /// What was counted before this run and in it.
  const ProgressCounters& progress() const { return m_progress; }

 private:
  QStringList m_runLog;
  ProgressCounters m_before;
  ProgressCounters m_progress;
  int m_今回の練習回数 = 0;
};

}  // namespace tavoli
