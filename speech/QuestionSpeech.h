// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/CurrentRecord.h"
#include "speech/Utterance.h"

// What is spoken of a sentence item.
namespace tavoli {

/// Whether a sentence is answered in Japanese, or by numbered pieces, so that nothing of it is
/// spoken.
bool isSilentSentence(const CurrentRecord& record);

/// The entries of a sentence item: its question with the answers in the blanks, where they fit;
/// else the question, whose place is empty where it has no English sentence with blanks, and behind
/// it each answer. A question that asks for the passive or the active voice takes no place unless
/// the answers fit. Empty for a silent sentence.
SpeechList speechQA(const CurrentRecord& record);

/// The entry of the k-th answer alone, without a given start that ends in "=".
Utterance answerEntry(const CurrentRecord& record, int k);

}  // namespace tavoli
