// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "speech/JapaneseWords.h"

namespace tavoli {

/// A piece of a Japanese text as it is said.
struct ReadingPiece {
  enum class Kind {
    kana,  ///< katakana as they sound, with 、 。 ？ as pauses
    latin  ///< for the English voice
  };
  Kind kind = Kind::kana;
  QString text;
};

/// How Japanese texts are read: in kana that a voice can say. An object is used on one thread.
class KanaReading {
 public:
  struct Dictionaries {
    QString words;  ///< the folder of MeCab's dictionary
    QString own;    ///< the file of our own readings
  };
  /// Where the dictionaries lie for a program in `programFolder`.
  static Dictionaries dictionariesFor(const QString& programFolder);

  /// Nothing when the program was built without MeCab or the dictionary of words is missing.
  static std::optional<KanaReading> open(const Dictionaries& dictionaries);

  std::vector<ReadingPiece> read(const QString& text) const;
  /// The same as one text, Latin pieces in [ ].
  QString readAsText(const QString& text) const;

 private:
  explicit KanaReading(JapaneseWords words) : m_words(std::move(words)) {}

  /// The sound of a word that the dictionary does not know as a whole.
  QString soundOf(const QString& written) const;
  QString kanaOf(const std::vector<JapaneseWord>& words, std::size_t& at) const;

  JapaneseWords m_words;
};

}  // namespace tavoli
