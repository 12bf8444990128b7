// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <espeak-ng/speak_lib.h>
#include <flite/flite.h>
#include <mecab.h>

#include "speech/voices/Voices.h"

extern "C" cst_voice* register_cmu_us_slt(const char* folder);

// From a text to the first sample of ours, against the engines' own way to it.
namespace tavoli {
namespace {

const QString english = QStringLiteral("This is the house that I have told you about.");
const QString japanese = QStringLiteral("次の日本文を英語に直しなさい。");
const QString kana = QStringLiteral("ツギノニホンブンオエイゴニナオシナサイ。");

bool sounds(std::span<const qint16> samples) {
  return std::any_of(samples.begin(), samples.end(), [](qint16 sample) { return sample != 0; });
}

/// Wants no more than what sounds first.
class FirstSample final : public SampleTaker {
 public:
  void take(std::span<const qint16> samples) override { m_heard = m_heard || sounds(samples); }
  bool wanted() const override { return !m_heard; }

 private:
  bool m_heard = false;
};

void speak(benchmark::State& state, VoiceLanguage language, VoiceEngine engine,
           const QString& text) {
  VoiceChoice choice;
  if (language == VoiceLanguage::English) choice.english = engine;
  const auto voice = makeVoice(
      language, choice, KanaReading::dictionariesFor(QCoreApplication::applicationDirPath()));
  for (auto _ : state) {
    FirstSample first;
    benchmark::DoNotOptimize(voice->say(text, {}, first));
  }
}

int hearEspeak(short* wave, int count, espeak_EVENT*) {
  return wave && sounds({wave, wave + count}) ? 1 : 0;
}

/// Never called before a voice has started the engine.
void startEspeak(const char* language) {
  espeak_VOICE wanted{};
  wanted.languages = language;
  espeak_SetVoiceByProperties(&wanted);
  espeak_SetSynthCallback(hearEspeak);
}

void sayByEspeak(const QByteArray& text) {
  espeak_Synth(text.constData(), text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr,
               nullptr);
}

void bareEspeak(benchmark::State& state) {
  startEspeak("en-us");
  for (auto _ : state) sayByEspeak(english.toUtf8());
}

void bareKana(benchmark::State& state) {
  const auto dictionaries = KanaReading::dictionariesFor(QCoreApplication::applicationDirPath());
  QByteArray words = dictionaries.words.toUtf8();
  QByteArray own = dictionaries.own.toUtf8();
  std::array<std::string, 7> arguments = {
      "mecab", "-r", "/dev/null", "-d", words.toStdString(), "-u", own.toStdString()};
  std::array<char*, 7> pointers{};
  std::transform(arguments.begin(), arguments.end(), pointers.begin(),
                 [](std::string& argument) { return argument.data(); });
  const std::unique_ptr<MeCab::Tagger> tagger(MeCab::createTagger(7, pointers.data()));
  const QByteArray bytes = japanese.toUtf8();
  startEspeak("ja");
  for (auto _ : state) {
    benchmark::DoNotOptimize(tagger->parse(bytes.constData(), bytes.size()));
    sayByEspeak(kana.toUtf8());
  }
}

int hearFlite(const cst_wave* wave, int start, int size, int, cst_audio_streaming_info*) {
  return sounds({wave->samples + start, wave->samples + start + size}) ? CST_AUDIO_STREAM_STOP
                                                                       : CST_AUDIO_STREAM_CONT;
}

void bareFlite(benchmark::State& state) {
  cst_voice* voice = register_cmu_us_slt(nullptr);
  cst_audio_streaming_info* stream = new_audio_streaming_info();
  stream->asc = hearFlite;
  feat_set(voice->features, "streaming_info", audio_streaming_info_val(stream));
  const QByteArray bytes = english.toUtf8();
  for (auto _ : state)
    if (cst_utterance* utterance = flite_synth_text(bytes.constData(), voice))
      delete_utterance(utterance);
}

const auto* const registered = [] {
  using benchmark::RegisterBenchmark;
  RegisterBenchmark("firstSampleEspeak", speak, VoiceLanguage::English, VoiceEngine::espeakAmerican,
                    english);
  RegisterBenchmark("firstSampleEspeak/bare", bareEspeak);
  RegisterBenchmark("firstSampleKana", speak, VoiceLanguage::Japanese, VoiceEngine::none, japanese);
  RegisterBenchmark("firstSampleKana/bare", bareKana);
  RegisterBenchmark("firstSampleFlite", speak, VoiceLanguage::English, VoiceEngine::flite, english);
  return RegisterBenchmark("firstSampleFlite/bare", bareFlite);
}();

}  // namespace
}  // namespace tavoli
