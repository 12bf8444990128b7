#pragma once

#include <QDateTime>

namespace tavoli {

/// The only source of the present time.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual QDateTime now() const = 0;
};

class SystemClock final : public Clock {
 public:
  QDateTime now() const override { return QDateTime::currentDateTime(); }
};

}  // namespace tavoli
