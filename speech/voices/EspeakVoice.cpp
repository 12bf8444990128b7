// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/EspeakVoice.h"

#include <algorithm>
#include <espeak-ng/speak_lib.h>
#include <mutex>

#include "system/sound/Resampler.h"

namespace tavoli {

namespace {

/// The engine's own state. It is never taken down: it is needed until the program's end.
struct Engine {
  std::mutex lock;
  int rate = 0;  ///< -1 when it cannot be used
  QByteArray voice;
};

struct Listener {
  SampleTaker& taker;
  Resampler resampler;
  Samples samples;

  void passOn() {
    taker.take(samples);
    samples.clear();
  }
};

int hear(short* wave, int count, espeak_EVENT* events) {
  auto* listener = static_cast<Listener*>(events->user_data);
  if (!listener) return 0;
  if (wave && count > 0) {
    listener->resampler.feed(std::span(wave, count), listener->samples);
    listener->passOn();
  }
  return listener->taker.wanted() ? 0 : 1;
}

bool select(Engine& engine, const QByteArray& language) {
  if (engine.rate == 0) {
    constexpr int pieceMilliseconds = 20;
    engine.rate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, pieceMilliseconds, nullptr,
                                    espeakINITIALIZE_DONT_EXIT);
  }
  if (engine.rate <= 0) return false;
  if (engine.voice == language) return true;
  espeak_VOICE wanted{};
  wanted.languages = language.constData();
  if (espeak_SetVoiceByProperties(&wanted) != EE_OK) return false;
  engine.voice = language;
  return true;
}

}  // namespace

std::optional<QString> EspeakVoice::say(const QString& text, const Pace& pace, SampleTaker& taker) {
  static Engine engine;
  const std::lock_guard lock(engine.lock);
  if (!select(engine, m_language))
    return QStringLiteral("音声エンジン espeak-ng を使えません（%1）。")
        .arg(QString::fromLatin1(m_language));
  constexpr int ownSpeed = 165;
  espeak_SetParameter(
      espeakRATE, std::clamp(pace.wordsPerMinute(ownSpeed), espeakRATE_MINIMUM, espeakRATE_MAXIMUM),
      0);
  espeak_SetSynthCallback(hear);
  const QByteArray bytes = withoutControls(text).toUtf8();
  Listener listener{taker, Resampler(engine.rate), {}};
  const espeak_ERROR error = espeak_Synth(bytes.constData(), bytes.size() + 1, 0, POS_CHARACTER, 0,
                                          espeakCHARS_UTF8, nullptr, &listener);
  if (error != EE_OK) return QStringLiteral("音声エンジン espeak-ng が読み上げに失敗しました。");
  listener.resampler.finish(listener.samples);
  listener.passOn();
  return std::nullopt;
}

}  // namespace tavoli
