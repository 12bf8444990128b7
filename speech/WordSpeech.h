// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "speech/Utterance.h"

// What is spoken of a word. A word of the pronunciation table is respelled, or silent; the capital
// A of a form like "A of B" is read as a letter; "～" is a pause.
namespace tavoli {

struct WordSpeech {
  SpeechList arraySPEECH;
  /// The word stands in the pronunciation table: its comment is not spoken either.
  bool pronExceptionFlag = false;
};

/// The word as it is spoken on demand; nothing for a silent word or a single letter.
std::optional<Utterance> SpeakWord(const QString& 英語);

/// The word's entry of a finished item; none for a silent word or a single letter.
WordSpeech speechAns(const QString& 英語);

/// The characters of a word one by one. Empty for an idiom.
Utterance spelling(const QString& 英語);

}  // namespace tavoli
