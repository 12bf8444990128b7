// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/sound/Mixer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace tavoli {

void Mixer::add(std::shared_ptr<SoundSource> source) {
  const std::lock_guard lock(m_lock);
  m_sources.push_back(std::move(source));
}

void Mixer::remove(const SoundSource& source) {
  const std::lock_guard lock(m_lock);
  std::erase_if(m_sources, [&](const auto& other) { return other.get() == &source; });
}

void Mixer::play(Samples samples) {
  const std::lock_guard lock(m_lock);
  m_playing.push_back({std::move(samples)});
}

void Mixer::stopPlaying() {
  const std::lock_guard lock(m_lock);
  m_playing.clear();
}

void Mixer::setTap(Tap tap) {
  const std::lock_guard lock(m_lock);
  m_tap = std::move(tap);
}

void Mixer::read(std::span<qint16> out) {
  const std::lock_guard lock(m_lock);
  std::fill(out.begin(), out.end(), qint16{0});
  m_piece.resize(out.size());
  for (const auto& source : m_sources) {
    const std::size_t count = source->read(m_piece);
    mixIn(out, std::span(m_piece).first(count));
  }
  for (Playing& playing : m_playing) {
    const std::size_t count = std::min(out.size(), playing.samples.size() - playing.next);
    mixIn(out, std::span(playing.samples).subspan(playing.next, count));
    playing.next += count;
  }
  std::erase_if(m_playing,
                [](const Playing& playing) { return playing.next == playing.samples.size(); });
  if (m_tap) m_tap(out);
}

void Mixer::mixIn(std::span<qint16> out, std::span<const qint16> sound) {
  using Limits = std::numeric_limits<qint16>;
  for (std::size_t i = 0; i < sound.size(); ++i)
    out[i] = static_cast<qint16>(std::clamp<int>(out[i] + sound[i], Limits::min(), Limits::max()));
}

Samples beepTone() {
  constexpr int length = samplesPerSecond * 3 / 20;
  constexpr int fade = samplesPerSecond / 100;
  constexpr double pitch = 880;
  constexpr double loudness = 9000;
  Samples samples(length);
  for (int i = 0; i < length; ++i) {
    const double swell =
        std::min({1.0, static_cast<double>(i) / fade, static_cast<double>(length - i) / fade});
    samples[i] = static_cast<qint16>(loudness * swell *
                                     std::sin(2 * std::numbers::pi * pitch * i / samplesPerSecond));
  }
  return samples;
}

}  // namespace tavoli
