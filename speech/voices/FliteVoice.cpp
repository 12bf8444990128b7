// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/FliteVoice.h"

#include <algorithm>
#include <flite/flite.h>
#include <mutex>

#include "system/sound/Resampler.h"

extern "C" cst_voice* register_cmu_us_slt(const char* folder);

namespace tavoli {

namespace {

constexpr int voiceRate = 16000;

/// The engine with its voice. It is never taken down: it is needed until the program's end.
struct Engine {
  std::mutex lock;
  cst_voice* voice = nullptr;
  cst_audio_streaming_info* stream = nullptr;
  Resampler resampler{voiceRate};
};

struct Listener {
  SampleTaker& taker;
  Resampler& resampler;
  Samples samples;

  void passOn() {
    taker.take(samples);
    samples.clear();
  }
};

int hear(const cst_wave* wave, int start, int size, int, cst_audio_streaming_info* stream) {
  auto* listener = static_cast<Listener*>(stream->userdata);
  listener->resampler.feed(std::span(wave->samples + start, size), listener->samples);
  // Its pieces are of a few milliseconds.
  constexpr std::size_t worthPassing = samplesPerSecond / 50;
  if (listener->samples.size() >= worthPassing) listener->passOn();
  return listener->taker.wanted() ? CST_AUDIO_STREAM_CONT : CST_AUDIO_STREAM_STOP;
}

void load(Engine& engine) {
  if (engine.voice) return;
  flite_init();
  engine.voice = register_cmu_us_slt(nullptr);
  engine.stream = new_audio_streaming_info();
  engine.stream->asc = hear;
  feat_set(engine.voice->features, "streaming_info", audio_streaming_info_val(engine.stream));
}

/// What the engine can read: ASCII, letters without their accents.
QByteArray spelling(const QString& text) {
  QString plain = withoutControls(text).normalized(QString::NormalizationForm_KD);
  plain.replace(u'’', u'\'').replace(u'‘', u'\'').replace(u'“', u'"').replace(u'”', u'"');
  QByteArray ascii;
  for (const QChar c : plain) {
    if (c.unicode() < 0x80)
      ascii += static_cast<char>(c.unicode());
    else if (!c.isMark())
      ascii += ' ';
  }
  return ascii.trimmed();
}

/// The end of the first piece of a text: a sentence, or what is long enough to begin with.
qsizetype pieceEnd(const QByteArray& text) {
  constexpr qsizetype longest = 300;
  qsizetype blank = 0;
  for (qsizetype i = 1; i < text.size(); ++i) {
    if (text[i] == ' ') {
      if (QByteArrayView(".?!").contains(text[i - 1])) return i;
      blank = i;
    }
    if (i >= longest) return blank > 0 ? blank : i;
  }
  return text.size();
}

}  // namespace

std::optional<QString> FliteVoice::say(const QString& text, const Pace& pace, SampleTaker& taker) {
  static Engine engine;
  const std::lock_guard lock(engine.lock);
  load(engine);
  constexpr int ownSpeed = 170;
  constexpr double shortest = 0.3;
  constexpr double longest = 3;
  const double speed = std::max(1, pace.wordsPerMinute(ownSpeed));
  feat_set_float(engine.voice->features, "duration_stretch",
                 static_cast<float>(std::clamp(ownSpeed / speed, shortest, longest)));
  Listener listener{taker, engine.resampler, {}};
  engine.stream->userdata = &listener;
  for (QByteArray rest = spelling(text); !rest.isEmpty() && taker.wanted();) {
    const qsizetype end = pieceEnd(rest);
    cst_utterance* utterance = flite_synth_text(rest.first(end).constData(), engine.voice);
    if (utterance) delete_utterance(utterance);
    rest = rest.sliced(end).trimmed();
  }
  engine.resampler.finish(listener.samples);
  listener.passOn();
  return std::nullopt;
}

}  // namespace tavoli
