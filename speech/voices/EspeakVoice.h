// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/voices/Synthesis.h"

namespace tavoli {

/// A voice of espeak-ng. The engine is one for the whole process: its voices wait for each other.
class EspeakVoice final : public Synthesis {
 public:
  /// `language`: "en-us", "en-gb", "ja", which is to get nothing but kana and its punctuation.
  explicit EspeakVoice(QByteArray language) : m_language(std::move(language)) {}

  std::optional<QString> say(const QString& text, const Pace& pace, SampleTaker& taker) override;

 private:
  QByteArray m_language;
};

}  // namespace tavoli
