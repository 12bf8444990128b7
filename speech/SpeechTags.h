// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/Utterance.h"

// The character's door: utterances as texts with tags. \Map="spoken"="shown"\ tells what is said
// from what is shown, \Spd=n\ gives the speed and \Ctx="context"\ the context.
namespace tavoli {

/// The text that goes to the character: context, speed, and the two halves, or the text alone of a
/// bare utterance; empty for an empty one. The voice is chosen apart from it. Quotes that would end
/// a half too soon get a blank behind them.
QString taggedText(const Utterance& utterance);

/// The inverse. Any text is read: an unpaired tag's value runs to the text's end, and what is
/// spoken or shown holds no beginning of a tag.
Utterance parseTags(QStringView text, VoiceLanguage voice = VoiceLanguage::English);

}  // namespace tavoli
