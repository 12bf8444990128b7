#pragma once

#include <QStringList>

#include "practice/PracticeScreen.h"
#include "practice/RunState.h"

namespace tavoli {

/// What has been done in a run so far: the finished items in words and in numbers.
class RunReport {
 public:
  /// `month` is what was counted before this run.
  explicit RunReport(const MonthCounts& month = {}) { m_counts.month = month; }

  /// Takes the present item of the run down as finished.
  void finish(const RunState& state);

  const QStringList& runLog() const { return m_runLog; }
  const RunCounts& counts() const { return m_counts; }

 private:
  QStringList m_runLog;
  RunCounts m_counts;
  int m_finished = 0;
};

}  // namespace tavoli
