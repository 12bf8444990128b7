// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "speech/KanaReading.h"
#include "speech/voices/Synthesis.h"

namespace tavoli {

/// Says Japanese by a voice that knows kana only; what stands in Latin letters by an English one.
class JapaneseVoice final : public Synthesis {
 public:
  /// `english` may be none: Latin letters are then passed over.
  JapaneseVoice(KanaReading reading, std::unique_ptr<Synthesis> kana,
                std::unique_ptr<Synthesis> english)
      : m_reading(std::move(reading)), m_kana(std::move(kana)), m_english(std::move(english)) {}

  std::optional<QString> say(const QString& text, const Pace& pace, SampleTaker& taker) override;

 private:
  KanaReading m_reading;
  std::unique_ptr<Synthesis> m_kana;
  std::unique_ptr<Synthesis> m_english;
};

}  // namespace tavoli
