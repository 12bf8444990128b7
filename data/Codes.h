// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QString>

#include <concepts>
#include <type_traits>

// The codes of the data. Inside the program they are enums, whose values are the stored characters;
// only stored() and codeOf() pass from one to the other. A character that is no known code keeps
// its value, so what was read is written back as it was.
namespace tavoli {

// Qt's meta-object compiler reads no Japanese enumerators; it needs none of these either.
#ifndef Q_MOC_RUN

/// The course that is practised.
enum class Course : char16_t { 中学 = u'0', 高校, 専門 };

/// How well something is remembered.
enum class MemoryState : char16_t { none = 0, 全然 = u'0', うろ覚え, 完全 };

/// The table of an item: a dictionary by its place in the course's look-up order, or BDIC.
enum class TableCode : char16_t { none = 0, first = u'1', second, third, sentences = u'B' };

/// What is practised, and in which order.
enum class SelMethod : char16_t {
  lessonInOrder = u'0',
  lessonAtRandom,
  wordsInOrder,
  wordsAtRandom,
  sentencesInOrder,
  sentencesAtRandom
};

/// Where a run starts.
enum class StartMode : char16_t {
  whereBegun = u'0',  ///< where the last run began
  first,
  whereEnded,  ///< where the last run ended
  named
};

/// Which memory states are asked.
enum class MemorySelect : char16_t {
  全然 = u'0',
  全然とうろ覚え,
  うろ覚え,
  完全,
  完全とうろ覚え,
  すべて
};

/// How upper and lower case are compared.
enum class CompareMode : char16_t { caseIgnored = u'0', caseMatters };

#endif

template <typename Code>
concept StoredCode = std::is_enum_v<Code> && std::same_as < std::underlying_type_t<Code>,
char16_t > ;

/// The character that stands for a code in the data.
template <StoredCode Code>
constexpr QChar stored(Code code) {
  return {static_cast<char16_t>(code)};
}

/// The code that a stored character stands for.
template <StoredCode Code>
constexpr Code codeOf(QChar character) {
  return static_cast<Code>(character.unicode());
}

/// The code that a stored text begins with; the code 0 of an empty text.
template <StoredCode Code>
Code codeOf(const QString& text) {
  return codeOf<Code>(text.isEmpty() ? QChar() : text[0]);
}

/// Where a code stands among those of its kind, from 0; any other number for an unknown one.
template <StoredCode Code>
constexpr int indexOf(Code code) {
  return static_cast<char16_t>(code) - u'0';
}

/// The n-th code of a kind, from 0.
template <StoredCode Code>
constexpr Code codeAt(int n) {
  return static_cast<Code>(u'0' + n);
}

/// What a method practises.
enum class Material { lesson, words, sentences };
constexpr Material materialOf(SelMethod selMethod) {
  return static_cast<Material>(indexOf(selMethod) / 2);
}
constexpr bool isRandom(SelMethod selMethod) {
  return selMethod == SelMethod::lessonAtRandom || selMethod == SelMethod::wordsAtRandom ||
         selMethod == SelMethod::sentencesAtRandom;
}

/// The dictionary at a place of the look-up order, from 1, and the other way round.
constexpr TableCode tableAt(int place) {
  return codeAt<TableCode>(place);
}
constexpr int placeOf(TableCode table) {
  return indexOf(table);
}

inline size_t qHash(TableCode table, size_t seed = 0) {
  return ::qHash(stored(table).unicode(), seed);
}

/// The name of a memory state; empty for any other code.
inline QString memoryName(MemoryState state) {
  switch (state) {
    case MemoryState::全然:
      return QStringLiteral("全然");
    case MemoryState::うろ覚え:
      return QStringLiteral("うろ覚え");
    case MemoryState::完全:
      return QStringLiteral("完全");
    default:
      return {};
  }
}

}  // namespace tavoli
