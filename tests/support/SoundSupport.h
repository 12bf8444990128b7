// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdlib>

#include "speech/voices/Synthesis.h"

namespace tavoli::test {

/// Keeps what a voice says.
class KeepingTaker final : public SampleTaker {
 public:
  explicit KeepingTaker(std::size_t most = SIZE_MAX) : m_most(most) {}
  void take(std::span<const qint16> samples) override {
    heard.insert(heard.end(), samples.begin(), samples.end());
  }
  bool wanted() const override { return heard.size() < m_most; }

  Samples heard;

 private:
  std::size_t m_most;
};

inline int loudest(std::span<const qint16> samples) {
  int most = 0;
  for (const qint16 sample : samples) most = std::max(most, std::abs(int{sample}));
  return most;
}

}  // namespace tavoli::test
