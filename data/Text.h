// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

// The small text helpers that the stored formats rest on. A character is one UTF-16 unit; positions
// count from 1; numbers are written and read in the C locale.
namespace tavoli {

inline constexpr QChar fieldMark = u'|';
inline constexpr QChar elementMark = u'^';
inline constexpr QChar lineMark = u'％';
/// Behind a sentence's number in lists and lesson files, at position 7.
inline constexpr QChar sentenceMark = u'･';

/// Takes the blanks U+0020 off both ends, and nothing else.
QString trimBlanks(QStringView text);

/// `length` characters from `position`; what lies outside the text is left out, never an error.
QString cut(QStringView text, qsizetype position, qsizetype length);
/// All characters from `position` on.
QString cutFrom(QStringView text, qsizetype position);

/// The whole number that the text begins with, blanks before it passed over; 0 for none.
int numberOf(QStringView text);
/// The same for a number that may have a decimal point.
double realOf(QStringView text);

/// At least `digits` digits, zeros in front.
QString digits(int value, int digits);

/// Exactly `width` characters: a longer text is cut, a shorter one filled with blanks.
QString fixedWidth(QStringView text, int width);

/// A sentence's number in six places, blanks in front where it is shorter.
QString sentencePlaces(QStringView 文番);

/// A lesson or start entry that names a sentence has the sentence mark at position 7.
bool isSentenceEntry(QStringView entry);

/// What an input method types for the wave dash and the minus sign, as the stored texts spell them.
QString storedSpelling(QString text);

}  // namespace tavoli
