#include "progress/MonthCounts.h"

#include "data/Schema.h"
#include "data/TableCursor.h"
#include "data/Text.h"

namespace tavoli {

namespace {

/// Positions of the six counts in the record, five digits each, one behind the other.
constexpr int wordsFrom = 10 + 57;
constexpr int sentencesFrom = wordsFrom + 15;
constexpr int width = 5;

}  // namespace

MonthCounts readMonthCounts(TableCursor& rsBDIC) {
  MonthCounts counts;
  rsBDIC.Seek(SeekOp::Equal, rowProgress);
  const QString progressRecord = rsBDIC.text(field問正コ);
  for (int level = 0; level < 3; ++level) {
    const auto i = static_cast<size_t>(level);
    counts.words[i] = numberOf(cut(progressRecord, wordsFrom + level * width, width));
    counts.sentences[i] = numberOf(cut(progressRecord, sentencesFrom + level * width, width));
  }
  return counts;
}

}  // namespace tavoli
