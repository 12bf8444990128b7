// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/Utterance.h"

// What is spoken of a comment: the English in front of the Japanese of its lines.
namespace tavoli {

/// The list with an entry behind it for each line of the comment that begins with English. A line
/// that begins with a blank, a digit or "×" is silent, and an empty one ends the comment.
SpeechList SpeakComment(const QString& コメント, SpeechList list);

/// One line of a comment, of which the first `end` - 1 characters are English, or one less where
/// the last of them is "～". A single word, a choice with "/", and what has fewer than 5 characters
/// add nothing to the list; a full list stays as it is.
SpeechList SpeakCommentPiece(const QString& text, qsizetype end, SpeechList list);

}  // namespace tavoli
