// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/PracticeSet.h"

#include <algorithm>
#include <utility>

#include "system/Random.h"

namespace tavoli {

void PracticeSet::append(PracticeItem item) {
  m_rows.push_back(m_items.size());
  m_items.push_back(std::move(item));
}

void PracticeSet::swap(int i, int j) {
  std::swap(m_rows[static_cast<size_t>(i - 1)], m_rows[static_cast<size_t>(j - 1)]);
}

void PracticeSet::ShufflePracticeSet(Random& random) {
  if (itemCount() <= startIndex + 1) return;
  const int span = itemCount() - startIndex;
  for (int i = startIndex + 1; i <= itemCount(); ++i) {
    const int j = static_cast<int>(random.next() * span) + startIndex;
    if (j != startIndex) swap(i, j);
  }
}

void PracticeSet::reshuffle(Random& random) {
  const int span = itemCount() - startIndex;
  if (span == 0) return;
  for (int i = startIndex; i <= itemCount(); ++i) {
    const int j = static_cast<int>(random.next() * span) + startIndex;
    swap(i, j);
  }
}

void PracticeSet::countItem(int i) {
  int& times = change(i).itemTimes;
  times = std::min(maxTimes, times + 1);
}

CurrentRecord PracticeSet::parsed(int i) const {
  const PracticeItem& row = item(i);
  CurrentRecord record = ParseRecord(row.itemRecord, row.itemEnglish, row.itemTable);
  record.complete = record.complete && !row.damaged;
  return record;
}

bool PracticeSet::RewriteRecord(int i, const CurrentRecord& record) {
  if (record.complete) change(i).itemRecord = packRecord(record);
  return record.complete;
}

}  // namespace tavoli
