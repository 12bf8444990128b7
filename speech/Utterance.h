// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace tavoli {

enum class VoiceLanguage { English, Japanese };

/// One thing to say. Lengths and tests go by what is shown.
struct Utterance {
  QString spoken;
  QString shown;         ///< in the balloon meanwhile
  QString context = {};  ///< how the voice is to read it, as "E-mail"; empty for as usual
  int speed = 0;         ///< words a minute; 0 for as usual
  VoiceLanguage voice = VoiceLanguage::English;
  /// Goes to the character as it stands, what is spoken and what is shown being one text.
  bool bare = false;

  bool isEmpty() const { return spoken.isEmpty() && shown.isEmpty(); }
  bool operator==(const Utterance&) const = default;
};

/// A text that is spoken and shown as it stands.
inline Utterance bareUtterance(const QString& text) {
  return {text, text, QString(), 0, VoiceLanguage::English, true};
}

/// What is to be spoken of an item, arraySPEECH; its size is speechCount. An entry may be empty: it
/// keeps its place and is never spoken.
using SpeechList = std::vector<Utterance>;

/// Comments are left out behind so many entries.
inline constexpr size_t maxSpeechEntries = 50;

}  // namespace tavoli
