// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>

namespace tavoli {

/// The only source of chance.
class Random {
 public:
  virtual ~Random() = default;
  /// A uniform value in [0, 1).
  virtual double next() = 0;
  /// Starts a new, unpredictable row of values.
  virtual void reseed() = 0;
};

class SystemRandom final : public Random {
 public:
  SystemRandom() { SystemRandom::reseed(); }
  double next() override { return std::uniform_real_distribution<double>(0.0, 1.0)(m_engine); }
  void reseed() override { m_engine.seed(std::random_device{}()); }

 private:
  std::mt19937_64 m_engine;
};

}  // namespace tavoli
