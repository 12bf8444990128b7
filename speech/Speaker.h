// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/Utterance.h"

namespace tavoli {

/// The voice of the drill. Speech is queued and never waited for.
class Speaker {
 public:
  virtual ~Speaker() = default;
  virtual void speak(const Utterance& utterance) = 0;
  /// Stops what is being said and forgets what is queued.
  virtual void stop() = 0;
  virtual void beep() = 0;

  /// One after the other.
  void speak(const SpeechList& utterances) {
    for (const Utterance& utterance : utterances) speak(utterance);
  }
};

/// A machine without a voice.
class SilentSpeaker final : public Speaker {
 public:
  using Speaker::speak;
  void speak(const Utterance&) override {}
  void stop() override {}
  void beep() override {}
};

}  // namespace tavoli
