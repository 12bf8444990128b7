// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/sound/Resampler.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace tavoli {

namespace {

constexpr double zeroCrossings = 16;
/// What lies between the audible range and half of the lower rate.
constexpr double passed = 0.95;

double sinc(double x) {
  return x == 0 ? 1 : std::sin(std::numbers::pi * x) / (std::numbers::pi * x);
}

/// A window that falls from 1 at 0 to 0 at 1.
double window(double x) {
  constexpr double a = 0.42;
  constexpr double b = 0.5;
  constexpr double c = 0.08;
  return a + b * std::cos(std::numbers::pi * x) + c * std::cos(2 * std::numbers::pi * x);
}

}  // namespace

Resampler::Resampler(int rate) {
  const int common = std::gcd(samplesPerSecond, rate);
  m_phases = samplesPerSecond / common;
  m_step = rate / common;
  const double cutoff = std::min(1.0, static_cast<double>(samplesPerSecond) / rate) * passed;
  m_reach = static_cast<qsizetype>(std::ceil(zeroCrossings / cutoff));
  m_filter.reserve(m_phases * 2 * m_reach);
  std::vector<double> row(2 * m_reach);
  for (int phase = 0; phase < m_phases; ++phase) {
    const double at = static_cast<double>(m_reach - 1) + static_cast<double>(phase) / m_phases;
    for (qsizetype k = 0; k < 2 * m_reach; ++k) {
      const double distance = static_cast<double>(k) - at;
      row[k] = sinc(cutoff * distance) * window(distance / static_cast<double>(m_reach));
    }
    const double sum = std::accumulate(row.begin(), row.end(), 0.0);
    for (const double weight : row) m_filter.push_back(static_cast<float>(weight / sum));
  }
  m_in.assign(m_reach - 1, 0);
}

void Resampler::produce(Samples& out) {
  const qsizetype width = 2 * m_reach;
  while (m_next + width <= static_cast<qsizetype>(m_in.size())) {
    const float sum = std::inner_product(m_in.begin() + m_next, m_in.begin() + m_next + width,
                                         m_filter.begin() + m_phase * width, 0.0F);
    constexpr float loudest = 32767;
    out.push_back(static_cast<qint16>(std::lround(std::clamp(sum, -loudest, loudest))));
    m_phase += m_step;
    m_next += m_phase / m_phases;
    m_phase %= m_phases;
  }
  const qsizetype done = std::min<qsizetype>(m_next, m_in.size());
  m_in.erase(m_in.begin(), m_in.begin() + done);
  m_next -= done;
}

void Resampler::feed(std::span<const qint16> in, Samples& out) {
  if (m_phases == m_step) {
    out.insert(out.end(), in.begin(), in.end());
    return;
  }
  m_in.insert(m_in.end(), in.begin(), in.end());
  produce(out);
}

void Resampler::finish(Samples& out) {
  if (m_phases == m_step) return;
  m_in.insert(m_in.end(), m_reach, 0);
  produce(out);
  m_in.assign(m_reach - 1, 0);
  m_next = 0;
  m_phase = 0;
}

}  // namespace tavoli
