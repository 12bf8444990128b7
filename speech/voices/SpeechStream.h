// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

#include "system/sound/Mixer.h"

namespace tavoli {

/// The texts that are being spoken one after the other, as the sound of the mixer. One thread
/// writes, the sound's thread reads; the writer waits while enough lies ready.
class SpeechStream final : public SoundSource {
 public:
  enum class Event { begins, ends };
  /// `told` hears on the sound's thread, and must not wait, when a text begins or ends. It ends
  /// with its last sample, or else when its turn has come; one without samples does both.
  explicit SpeechStream(std::function<void(Event, int number)> told) : m_told(std::move(told)) {}

  /// Adds a text behind the others, under a number of the caller's.
  void open(int number);
  /// Adds samples to the last text, and waits where enough lies ready already. False when the
  /// samples are not wanted any more, since `clear` was called behind `open`.
  bool append(std::span<const qint16> samples);
  /// Whether more samples of the text that was opened last are wanted.
  bool wanted();
  /// The last text has all of its samples.
  void close();
  /// Forgets all texts; nothing is told of them any more. At most a hundredth of a second is still
  /// heard, fading.
  void clear();

  std::size_t read(std::span<qint16> out) override;

 private:
  struct Text {
    int number = 0;
    bool begun = false;
    bool closed = false;
    Samples samples = {};
    std::size_t next = 0;

    std::size_t rest() const { return samples.size() - next; }
  };

  std::size_t ready() const;

  std::function<void(Event, int)> m_told;
  std::mutex m_lock;
  std::condition_variable m_taken;
  std::deque<Text> m_texts;
  Samples m_fading;
  bool m_writing = false;  ///< the last text is open and was not cleared
};

}  // namespace tavoli
