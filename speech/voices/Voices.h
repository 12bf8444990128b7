// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "speech/KanaReading.h"
#include "speech/Utterance.h"
#include "speech/voices/Synthesis.h"

namespace tavoli {

enum class VoiceEngine { none, flite, espeakAmerican, espeakBritish, espeakJapanese, command };

/// What the learner has chosen for the voices.
struct VoiceChoice {
  VoiceEngine english = VoiceEngine::flite;
  VoiceEngine japanese = VoiceEngine::espeakJapanese;
  QString englishCommand;
  QString japaneseCommand;
  double pace = 1;     ///< the speed is multiplied by it
  int loudness = 100;  ///< percent of what the voices deliver

  bool operator==(const VoiceChoice&) const = default;
};

/// Whether the program was built with the engine and, for Japanese, the machine has the dictionary.
bool voiceAvailable(VoiceEngine engine, const KanaReading::Dictionaries& dictionaries);

/// Makes the voice that is chosen for a language; where it is not there, one of the same language
/// that is, or else none.
std::unique_ptr<Synthesis> makeVoice(VoiceLanguage language, const VoiceChoice& choice,
                                     const KanaReading::Dictionaries& dictionaries);

}  // namespace tavoli
