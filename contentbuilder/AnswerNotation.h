// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include "data/CurrentRecord.h"
#include "data/Expansion.h"

// The notation in which people write an answer and its alternatives.
namespace tavoli {

/// What one line tells: the answer, and the parts that are marked in it, from left to right.
struct AnswerLine {
  QString 正;
  int 先頭文字数 = 0;
  std::vector<Substitution> substitutions;
};

/// Reads the text of a 答 or 或 line. Each mistake in it is appended to `problems` as a sentence;
/// the result is then of no use.
AnswerLine parseAnswerLine(const QString& notation, QStringList& problems);

/// The answer as it is stored, out of a 答 line that has taken in the substitutions of its 或
/// lines. `problems` as above.
SubQuestion packAnswer(const AnswerLine& answer, QStringList& problems);

/// The inverse: the texts of the 答 line and of as many 或 lines as the answer needs. A damaged
/// answer gives lines that do not read back as it.
QStringList answerNotation(const SubQuestion& answer);

}  // namespace tavoli
