// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavoli {

/// Watches a long load and may stop it.
class LoadProgress {
 public:
  virtual ~LoadProgress() = default;
  /// A long load of so many lines or rows begins.
  virtual void begin(int loadTotal) = 0;
  /// Called now and then with the number of the line or row that comes next, from 1; false when the
  /// learner wants no more.
  virtual bool reached(int loadDone) = 0;
  virtual void end() = 0;
};

}  // namespace tavoli
