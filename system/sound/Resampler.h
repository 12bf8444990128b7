// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "system/sound/Samples.h"

namespace tavoli {

/// Brings mono sound of another rate to ours, piece by piece.
class Resampler {
 public:
  /// `rate`: samples a second of what comes in, at least 1.
  explicit Resampler(int rate);

  /// Appends to `out` what can be told from the samples so far.
  void feed(std::span<const qint16> in, Samples& out);
  /// Appends the rest; then the next sound may begin.
  void finish(Samples& out);

 private:
  void produce(Samples& out);

  int m_phases;                 ///< outgoing samples to
  int m_step;                   ///< incoming ones, in lowest terms
  qsizetype m_reach;            ///< incoming samples on each side that one outgoing is made of
  std::vector<float> m_filter;  ///< a row of 2 * m_reach for each phase
  std::vector<float> m_in;
  qsizetype m_next = 0;  ///< the first of m_in that the next outgoing sample is made of
  int m_phase = 0;
};

}  // namespace tavoli
