// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// What no text of the content may hold. Each check returns a sentence that names the mistake, empty
// when there is none; `name` is what the text is called in it.
namespace tavoli {

/// The separators of packed records.
QString separatorProblem(const QString& name, const QString& text);

/// Display marks that do not pair or that nest.
QString markProblem(const QString& name, const QString& text);

/// Characters that look like the right ones and are not: "｜", "%" for "％", curly quotes, blanks
/// that are none, composed characters in pieces.
QString lookalikeProblem(const QString& name, const QString& text);

/// What a learner could not type as a word: all but letters, digits, "' . - & / ,", "～" and
/// single blanks.
QString untypableWordProblem(const QString& name, const QString& text);

/// What a learner could not type in a sentence: all but ASCII and single blanks.
QString untypableAnswerProblem(const QString& name, const QString& text);

}  // namespace tavoli
