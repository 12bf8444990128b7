// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

#include "data/CurrentRecord.h"

namespace tavoli {

class Random;

inline constexpr int maxItems = 25000;
/// Counts of practices end here.
inline constexpr int maxTimes = 99;

/// One question of the run: a copy of a table's row.
struct PracticeItem {
  QString itemEnglish;  ///< 英語 of a word, 文番 of a sentence
  TableCode itemTable{};
  QString itemLevel;  ///< two digits; of a sentence "0" and the first character of its 文番
  MemoryState itemMemory{};  ///< 記憶 of the row
  int itemTimes = 0;         ///< 回数 of the row, 0 to 99
  QString itemRecord;        ///< the packed record
  QString itemReading;       ///< 読上
  bool itemDirty = false;
  bool damaged = false;  ///< the row's record is no proper text: it cannot be written again

  bool isSentence() const { return itemTable == TableCode::sentences; }
};

/// The run's items, counted from 1, in the order in which they are asked. It carries all changes
/// until the run ends. Items that stand for the same row are one and the same.
class PracticeSet {
 public:
  int itemCount() const { return static_cast<int>(m_rows.size()); }
  const PracticeItem& item(int i) const { return m_items[rowOf(i)]; }
  void append(PracticeItem item);
  /// Lets item i come once more.
  void appendCopy(int i) { m_rows.push_back(rowOf(i)); }

  /// The different rows, and which of them, from 0, item i stands for.
  size_t rowCount() const { return m_items.size(); }
  size_t rowOf(int i) const { return m_rows[static_cast<size_t>(i - 1)]; }

  /// The item of the first question, to which the run wraps round too.
  int startIndex = 1;

  /// Mixes the items behind startIndex; that one and those before it stay.
  void ShufflePracticeSet(Random& random);
  /// Mixes the items from startIndex on, that one included.
  void reshuffle(Random& random);

  /// Item i has been on the screen: it is stored at the end of the run.
  void markShown(int i) { change(i).itemDirty = true; }
  /// Item i was practised once more.
  void countItem(int i);
  /// The i-th item taken apart.
  CurrentRecord parsed(int i) const;
  /// Packs the record into item i. A record that was damaged leaves the item's text as it is, and
  /// false is returned.
  [[nodiscard]] bool RewriteRecord(int i, const CurrentRecord& record);

 private:
  void swap(int i, int j);
  /// Every change of an item goes through here.
  PracticeItem& change(int i) { return m_items[rowOf(i)]; }

  std::vector<PracticeItem> m_items;
  std::vector<size_t> m_rows;  ///< by the order of asking
};

}  // namespace tavoli
