// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <span>

#include "system/sound/Samples.h"

namespace tavoli {

/// Something that sounds for as long as it stands in the mixer.
class SoundSource {
 public:
  virtual ~SoundSource() = default;
  /// Writes the next samples to the beginning of `out` and returns how many; behind them it is
  /// silent. Called on the sound's thread: it must not wait.
  virtual std::size_t read(std::span<qint16> out) = 0;
};

/// The one stream of all that the program plays: mono, 16 bits, 44,100 samples a second, silence
/// where nothing sounds. Any thread may call it.
class Mixer {
 public:
  /// Hears every sample of the stream, in order, on the sound's thread: it must not wait and must
  /// not call the mixer.
  using Tap = std::function<void(std::span<const qint16>)>;

  void add(std::shared_ptr<SoundSource> source);
  /// Once it returns, the source is not read any more.
  void remove(const SoundSource& source);

  /// Plays the samples at once, whatever else sounds.
  void play(Samples samples);
  /// Ends what `play` has begun.
  void stopPlaying();

  /// Puts a tap in the place of the last one, which then hears nothing any more; empty for none.
  void setTap(Tap tap);

  /// Fills `out` with the next samples of the stream. Only one thread at a time reads it.
  void read(std::span<qint16> out);

 private:
  struct Playing {
    Samples samples;
    std::size_t next = 0;
  };

  void mixIn(std::span<qint16> out, std::span<const qint16> sound);

  std::mutex m_lock;
  std::vector<std::shared_ptr<SoundSource>> m_sources;
  std::vector<Playing> m_playing;
  Tap m_tap;
  Samples m_piece;
};

/// A short tone that calls for attention.
Samples beepTone();

}  // namespace tavoli
