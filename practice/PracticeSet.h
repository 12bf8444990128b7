#pragma once

#include <QString>

#include <vector>

#include "data/CurrentRecord.h"

namespace tavoli {

class Random;

inline constexpr int maxItems = 25000;

/// One question of the run: a copy of a table's row.
struct PracticeItem {
  QString lessonLine;   ///< the lesson file's entry; in a run over a table the 英語
  QString itemEnglish;  ///< 英語 of a word, 文番 of a sentence
  QChar itemTable;      ///< "B" for BDIC, "1" to "3" for the place in the course's look-up order
  QString itemLevel;    ///< two digits; of a sentence "0" and the first character of its 文番
  QChar itemMemory;     ///< 記憶 of the row
  int itemTimes = 0;    ///< 回数 of the row, 0 to 99
  QString itemRecord;   ///< the packed record
  QString itemReading;  ///< 読上
  bool itemDirty = false;

  bool isSentence() const { return itemTable == tableOfSentences; }
};

/// The run's items, counted from 1, in the order in which they are asked. It carries all changes
/// until the run ends.
class PracticeSet {
 public:
  int itemCount() const { return static_cast<int>(m_items.size()); }
  PracticeItem& item(int i) { return m_items[static_cast<size_t>(i - 1)]; }
  const PracticeItem& item(int i) const { return m_items[static_cast<size_t>(i - 1)]; }
  void append(PracticeItem item) { m_items.push_back(std::move(item)); }

  /// The item of the first question, to which the run wraps round too.
  int startIndex = 1;

  /// Mixes the items behind startIndex; that one and those before it stay.
  void ShufflePracticeSet(Random& random);
  /// Mixes the items from startIndex on, that one included.
  void reshuffle(Random& random);

  /// The i-th item taken apart.
  CurrentRecord parsed(int i) const;
  /// Packs the record into item i. A record that was damaged leaves the item's text as it is, and
  /// false is returned.
  [[nodiscard]] bool RewriteRecord(int i, const CurrentRecord& record);

 private:
  std::vector<PracticeItem> m_items;
};

}  // namespace tavoli
