#include "practice/PracticeSet.h"

#include <utility>

#include "system/Random.h"

namespace tavoli {

void PracticeSet::ShufflePracticeSet(Random& random) {
  if (itemCount() <= startIndex + 1) return;
  const int span = itemCount() - startIndex;
  for (int i = startIndex + 1; i <= itemCount(); ++i) {
    const int j = static_cast<int>(random.next() * span) + startIndex;
    if (j != startIndex) std::swap(item(i), item(j));
  }
}

void PracticeSet::reshuffle(Random& random) {
  const int span = itemCount() - startIndex;
  if (span == 0) return;
  for (int i = startIndex; i <= itemCount(); ++i) {
    const int j = static_cast<int>(random.next() * span) + startIndex;
    std::swap(item(i), item(j));
  }
}

CurrentRecord PracticeSet::parsed(int i) const {
  return ParseRecord(item(i).itemRecord, item(i).itemEnglish, item(i).itemTable);
}

bool PracticeSet::RewriteRecord(int i, const CurrentRecord& record) {
  if (record.complete) item(i).itemRecord = packRecord(record);
  return record.complete;
}

}  // namespace tavoli
