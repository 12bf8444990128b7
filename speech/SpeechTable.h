// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/Utterance.h"

namespace tavoli {

/// The text as it is shown, and with the phrases respelled that the voice would say wrongly: of
/// each row of the phrase table the first place, in the table's order.
Utterance ApplySpeechTable(const QString& text);

/// The same for an entry of arraySPEECH: a last word "in." is spoken without its stop, which would
/// make it an abbreviation.
Utterance sentenceEntry(const QString& text);

}  // namespace tavoli
