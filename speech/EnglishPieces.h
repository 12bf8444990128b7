// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// What the English of questions and of comments is found by.
namespace tavoli {

/// No more pieces of a text are spoken than these.
inline constexpr qsizetype maxPieces = 49;

/// The text without its display marks; line marks stay.
QString withoutMarks(QString text);

/// The lines of a text, as they are, up to an empty one.
QStringList piecesOf(const QString& text);

/// A piece whose first character is "＝" with "=" there.
QString withPlainEquals(QString piece);

/// Whether a piece, made by withPlainEquals, is English by its first character: one from "=" to
/// "z", "(" or the double quote. A digit is none.
bool isEnglish(const QString& piece);

}  // namespace tavoli
