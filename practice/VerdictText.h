// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "itemtext/MarkedText.h"
#include "judge/Comparison.h"

// The messages about an entry, whichever drill judged it.
namespace tavoli {

/// What is to be typed for the k-th 小問: 正 of a sentence, 英語 of a word.
QString answerOf(const CurrentRecord& record, int k);

/// Whether an entry, tidied already, holds no more than what was given for the k-th 小問. Such an
/// entry costs nothing.
bool addsNothing(const CurrentRecord& record, int k, const QString& entry);

/// "… は正解ではありません。"
QString notRightText(const QString& typed);
/// The same with the differing stretch in colour.
MarkedText wrongText(const Comparison& comparison);
/// The same for a slip of the mark at the end: names the mark that is missing, or colours the one
/// that is wrong.
MarkedText slipText(const Comparison& comparison, const QString& answer);
/// "… も正解ですが、… を覚えてください。"
MarkedText toleratedText(const Comparison& comparison, const QString& answer);
/// How often the answer is still to be typed.
QString repeatsText(int repeats);

}  // namespace tavoli
