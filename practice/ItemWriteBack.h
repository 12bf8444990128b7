// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <memory>
#include <vector>

#include "conditions/PracticeConditions.h"
#include "data/Database.h"
#include "data/ItemState.h"
#include "practice/PracticeSet.h"
#include "progress/ProgressCounters.h"

namespace tavoli {

/// Stores items of a run in their rows, and follows how the learner's memory counts change by it.
class ItemWriteBack {
 public:
  /// The tables of the course must be in `database`.
  ItemWriteBack(Database& database, const CourseChoice& course);

  /// Sums the item's state up and stores it with the item's record and count. A row that has gone
  /// is no failure. False when the row could not be written.
  [[nodiscard]] bool WriteBackItem(const PracticeItem& item);

  const MemoryGrowth& growth() const { return m_growth; }
  /// What was wrong with the items and their rows, a line each.
  const QStringList& complaints() const { return m_complaints; }

 private:
  [[nodiscard]] bool updateSentenceRow(TableCursor& rows, const PracticeItem& item,
                                       MemoryState state);
  [[nodiscard]] bool updateDictionaryRow(TableCursor& rows, const PracticeItem& item,
                                         MemoryState state);
  /// The row of `item` is about to get `state` in the place of its own.
  void follow(const TableCursor& rows, const PracticeItem& item, MemoryState state);

  Course m_COURSE;
  std::unique_ptr<TableCursor> m_rsBDIC;
  std::vector<std::unique_ptr<TableCursor>> m_rsTDIC;  ///< by place, from "1"
  MemoryGrowth m_growth;
  QStringList m_complaints;
};

}  // namespace tavoli
