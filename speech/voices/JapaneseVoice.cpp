// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/JapaneseVoice.h"

namespace tavoli {

namespace {

/// The samples of silence that a piece ends with.
int pauseBehind(const ReadingPiece& piece) {
  constexpr int shortPause = samplesPerSecond * 3 / 20;
  constexpr int longPause = samplesPerSecond * 3 / 10;
  const QChar last = piece.text.back();
  if (last == u'、' || last == u',') return shortPause;
  return last == u'。' || last == u'？' ? longPause : 0;
}

}  // namespace

std::optional<QString> JapaneseVoice::say(const QString& text, const Pace& pace,
                                          SampleTaker& taker) {
  for (const ReadingPiece& piece : m_reading.read(text)) {
    if (!taker.wanted()) break;
    const bool latin = piece.kind == ReadingPiece::Kind::latin;
    Synthesis* voice = latin ? m_english.get() : m_kana.get();
    if (!voice) continue;
    // A speed that is meant for Japanese says nothing about English.
    const Pace own = latin ? Pace{0, pace.factor} : pace;
    if (auto failure = voice->say(piece.text, own, taker)) return failure;
    // Voices leave out the pause behind the last word.
    if (const int pause = pauseBehind(piece); pause > 0) taker.take(Samples(pause));
  }
  return std::nullopt;
}

}  // namespace tavoli
