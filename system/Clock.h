// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

namespace tavoli {

/// The only source of the present time.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Date and time of day, which the learner and the network may put forward and back.
  virtual QDateTime now() const = 0;
  /// Milliseconds since some moment in the past, for spans of time: it never goes back, and runs
  /// on while the machine sleeps.
  virtual qint64 milliseconds() const = 0;
};

class SystemClock final : public Clock {
 public:
  QDateTime now() const override { return QDateTime::currentDateTime(); }
  qint64 milliseconds() const override;
};

}  // namespace tavoli
