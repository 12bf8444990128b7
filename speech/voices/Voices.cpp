// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/Voices.h"

#include <QFileInfo>

#include "speech/voices/CommandVoice.h"
#include "speech/voices/JapaneseVoice.h"
#ifdef TAVOLI_ESPEAK
#include "speech/voices/EspeakVoice.h"
#endif
#ifdef TAVOLI_FLITE
#include "speech/voices/FliteVoice.h"
#endif

namespace tavoli {

namespace {

#ifdef TAVOLI_ESPEAK
constexpr bool hasEspeak = true;
std::unique_ptr<Synthesis> makeEspeak(const char* language) {
  return std::make_unique<EspeakVoice>(language);
}
#else
constexpr bool hasEspeak = false;
std::unique_ptr<Synthesis> makeEspeak(const char*) {
  return nullptr;
}
#endif

#ifdef TAVOLI_FLITE
constexpr bool hasFlite = true;
std::unique_ptr<Synthesis> makeFlite() {
  return std::make_unique<FliteVoice>();
}
#else
constexpr bool hasFlite = false;
std::unique_ptr<Synthesis> makeFlite() {
  return nullptr;
}
#endif

std::unique_ptr<Synthesis> makeEnglish(VoiceEngine engine, const QString& command) {
  switch (engine) {
    case VoiceEngine::flite:
      return makeFlite();
    case VoiceEngine::espeakAmerican:
      return makeEspeak("en-us");
    case VoiceEngine::espeakBritish:
      return makeEspeak("en-gb");
    case VoiceEngine::command:
      return std::make_unique<CommandVoice>(command);
    default:
      return nullptr;
  }
}

std::unique_ptr<Synthesis> makeEnglish(const VoiceChoice& choice) {
  if (choice.english == VoiceEngine::none) return nullptr;
  auto voice = makeEnglish(choice.english, choice.englishCommand);
  if (!voice) voice = makeFlite();
  if (!voice) voice = makeEspeak("en-us");
  return voice;
}

}  // namespace

bool voiceAvailable(VoiceEngine engine, const KanaReading::Dictionaries& dictionaries) {
  switch (engine) {
    case VoiceEngine::flite:
      return hasFlite;
    case VoiceEngine::espeakAmerican:
    case VoiceEngine::espeakBritish:
      return hasEspeak;
    case VoiceEngine::espeakJapanese:
      return hasEspeak && KanaReading::open(dictionaries).has_value();
    default:
      return true;
  }
}

std::unique_ptr<Synthesis> makeVoice(VoiceLanguage language, const VoiceChoice& choice,
                                     const KanaReading::Dictionaries& dictionaries) {
  if (language == VoiceLanguage::English) return makeEnglish(choice);
  if (choice.japanese == VoiceEngine::command)
    return std::make_unique<CommandVoice>(choice.japaneseCommand);
  if (choice.japanese == VoiceEngine::none) return nullptr;
  auto kana = makeEspeak("ja");
  auto reading = KanaReading::open(dictionaries);
  if (!kana || !reading) return nullptr;
  return std::make_unique<JapaneseVoice>(*std::move(reading), std::move(kana), makeEnglish(choice));
}

}  // namespace tavoli
