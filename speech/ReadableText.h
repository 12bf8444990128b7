// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace tavoli {

/// A Japanese text made ready to be taken apart into words.
struct ReadableText {
  /// Nothing but kanji, kana, digits, blanks, the pauses 、 。 ？, and a `latinPlace` for each
  /// piece in Latin letters.
  QString japanese;
  QStringList latin;
};

inline constexpr QChar latinPlace = u'X';

/// Signs become pauses where a reader would pause, and are left out where none would.
ReadableText readableText(const QString& text);

/// Kana as a voice can say them: in katakana, small vowels and long marks only where they make a
/// sound, one pause at a time and none at the beginning.
QString speakableKana(const QString& kana);

}  // namespace tavoli
