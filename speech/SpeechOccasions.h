// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "data/CurrentRecord.h"
#include "speech/Utterance.h"

// What is spoken when. All of it is returned; the caller speaks it.
namespace tavoli {

/// The list of an item whose answers are shown: question and answers, or the word, and the
/// comment's English. Empty for a silent sentence; a word of the pronunciation table is without its
/// comment.
SpeechList itemSpeech(const CurrentRecord& record);

/// Whether an entry goes to the voice without a reading context: it has ":" or ";" behind its first
/// character, or auto play is reading the item `key`, which stands in the pronunciation table.
bool 発Exception(const Utterance& entry, const QString& key = {});

/// The utterances that speak a list so many times over. Empty entries and two fragments that are no
/// English are left out. `key` as in 発Exception.
SpeechList SPEECH(const SpeechList& arraySPEECH, int repeats, const QString& key = {});

/// What an answer is spoken for, with the codes of the two modes.
enum class ShowAnswerMode : char16_t {
  onDemand = u'3',  ///< the learner asks for it in the practice
  inReview = u'4'   ///< in the review, on demand and when it was typed
};

/// What is spoken when the answer of the k-th 小問 is shown: the answer, behind its "="; the word,
/// in the practice between its letters twice, which are spoken of a silent word too. Empty for a
/// silent sentence, and where it has no k-th 小問.
SpeechList ShowAnswer(ShowAnswerMode mode, const CurrentRecord& record, int k);

/// What sounds at once: at most one of the two.
struct TimeUp {
  bool beep = false;
  std::optional<Utterance> utterance;
};

/// What sounds when the target time has passed, where it is `enabled`: by `timeUpSound` nothing
/// (0), a beep (1), or a sentence with an empty balloon (2).
TimeUp TimeUpSound(bool enabled, int timeUpSound);

}  // namespace tavoli
