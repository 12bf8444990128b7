// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/ProgressRecord.h"

#include <algorithm>

#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr QChar condMark = u'2';
constexpr int userIdWidth = 8;
constexpr int countWidth = 5;
constexpr int timeWidth = 9;
constexpr int maxCount = 99999;
constexpr int maxTime = 999999999;
constexpr int momentWidth = 15;
const QString momentFormat = u"yyyy/MM/ddHH:mm"_s;

/// Calls `use` with each counter's number `i` in the order of the record, and with its width.
template <typename Counters, typename Use>
void forEachNumber(Counters& counters, size_t i, const Use& use) {
  const auto family = [&](auto& byLevel, int width) {
    for (auto& three : byLevel) use(three[i], width);
  };
  family(counters.記憶単熟, countWidth);
  family(counters.記憶文, countWidth);
  family(counters.時間, timeWidth);
  family(counters.回数単熟, countWidth);
  family(counters.回数文, countWidth);
  family(counters.回数, countWidth);
}

/// 0 unless the text holds `width` digits there.
int numberAt(const QString& text, int position, int width) {
  const QString number = cut(text, position, width);
  const bool sound =
      number.size() == width &&
      std::all_of(number.begin(), number.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  return sound ? numberOf(number) : 0;
}

}  // namespace

QString buildProgressRecord(const QString& userId, const ProgressCounters& counters,
                            const RunClock& times) {
  QString record = fixedWidth(userId, userIdWidth) + condMark;
  for (size_t i = 0; i < 3; ++i) {
    forEachNumber(counters, i, [&](int value, int width) {
      record += digits(std::min(std::abs(value), width == timeWidth ? maxTime : maxCount), width);
    });
  }
  return record + times.開始時刻.toString(momentFormat) + times.終了時刻.toString(momentFormat);
}

StoredProgress parseProgressRecord(const QString& progressRecord) {
  StoredProgress stored;
  int position = progressNumbersFrom;
  for (size_t i = 0; i < 3; ++i) {
    forEachNumber(stored.counters, i, [&](int& value, int width) {
      value = numberAt(progressRecord, position, width);
      position += width;
    });
  }
  stored.previousStart =
      QDateTime::fromString(cut(progressRecord, progressTimesFrom, momentWidth), momentFormat);
  return stored;
}

}  // namespace tavoli
