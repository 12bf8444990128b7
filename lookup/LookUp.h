// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

#include "data/TableCursor.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

/// The word to look up for a click or a selection in a text. Positions count from 0; with a length
/// of 0, `selectionStart` is the caret, and its word is the run of Latin letters around it. Of a
/// selection it is what stands before the first character that is no Latin letter. Empty where
/// there is no word of two letters or more.
QString wordAt(const QString& text, int selectionStart, int selectionLength);

/// Finds words in one dictionary and tells how their entries are shown. An entry never touches the
/// record of the question.
class LookUp {
 public:
  /// `dictionary` must outlive the look-up. Several look-ups may share one: each steps on from the
  /// entry that it showed itself.
  explicit LookUp(TableCursor& dictionary) : m_dictionary(dictionary) {}

  /// The entry of that key or else of the next one behind it in key order; the last entry for a key
  /// behind all of them, and a notice where there is none. An empty text or a number shows nothing.
  std::optional<MarkedText> find(const QString& text);

  /// The entry behind the last one shown; at the end that one again. Before anything was found, the
  /// first entry. Nothing when the dictionary is empty.
  std::optional<MarkedText> next();
  /// The entry before the last one shown; at the beginning that one again. When nothing is looked
  /// for (nothing was found yet, or the last text was empty), the last entry.
  std::optional<MarkedText> previous();

 private:
  /// Goes to the entry that was shown last. False when there is none.
  bool returnToEntry();
  /// Goes back from the learner's own rows and end marks, which are no entries.
  void leaveReservedRows();
  std::optional<MarkedText> shown();
  MarkedText showEntry() const;

  TableCursor& m_dictionary;
  std::optional<QString> m_entry;  // the key of the entry that was shown last
  bool m_fromEnd = false;          // whether the box was emptied since the last step
};

}  // namespace tavoli
