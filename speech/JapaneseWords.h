// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace tavoli {

/// A word of a Japanese text, as the dictionary has it.
struct JapaneseWord {
  enum class Kind { other, number, counter };

  QString written;
  QString said;  ///< in katakana as it sounds; empty when the dictionary does not know it
  Kind kind = Kind::other;
};

/// Takes Japanese texts apart by MeCab. An object is used on one thread at a time.
class JapaneseWords {
 public:
  /// Nothing when the program was built without MeCab, or when the dictionary of words in UTF-8
  /// does not lie in the folder `dictionary`. A list of our own that is missing is done without.
  static std::optional<JapaneseWords> open(const QString& dictionary, const QString& ownList);

  JapaneseWords(JapaneseWords&&) noexcept;
  JapaneseWords& operator=(JapaneseWords&&) noexcept;
  ~JapaneseWords();

  /// The words of a text in their order; blanks are passed over.
  std::vector<JapaneseWord> split(const QString& text) const;

 private:
  struct Engine;
  explicit JapaneseWords(std::unique_ptr<Engine> engine);

  std::unique_ptr<Engine> m_engine;
};

}  // namespace tavoli
