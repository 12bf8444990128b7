// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/sound/Resampler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

namespace tavoli {

namespace {

/// Enough for speech, and half the work of twice as many.
constexpr double zeroCrossings = 7;
/// What lies between the audible range and half of the lower rate.
constexpr double passed = 0.95;

double sinc(double x) {
  return x == 0 ? 1 : std::sin(std::numbers::pi * x) / (std::numbers::pi * x);
}

/// As many products go side by side, so that the processor can do them at once.
constexpr qsizetype lanes = 8;

float sumOfProducts(const float* one, const float* other, qsizetype count) {
  std::array<float, lanes> sums{};
  for (qsizetype i = 0; i < count; i += lanes)
    for (qsizetype lane = 0; lane < lanes; ++lane) sums[lane] += one[i + lane] * other[i + lane];
  return std::accumulate(sums.begin(), sums.end(), 0.0F);
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
  constexpr qsizetype step = lanes / 2;
  m_reach = (static_cast<qsizetype>(zeroCrossings / cutoff) / step + 1) * step;
  m_filter.reserve(2 * m_reach * m_phases);
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
    const float sum = sumOfProducts(m_in.data() + m_next, m_filter.data() + m_phase * width, width);
    constexpr float loudest = 32767;
    const float bounded = std::clamp(sum, -loudest, loudest);
    // Rounded by hand, since it is done for every sample.
    constexpr float half = 0.5F;
    out.push_back(static_cast<qint16>(bounded < 0 ? bounded - half : bounded + half));
    m_phase += m_step;
    m_next += m_phase / m_phases;
    m_phase %= m_phases;
  }
  const qsizetype done = std::min(m_next, static_cast<qsizetype>(m_in.size()));
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
