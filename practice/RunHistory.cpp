// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/RunHistory.h"

#include <algorithm>

#include "data/Text.h"
#include "progress/ProgressRecord.h"

using namespace Qt::StringLiterals;

namespace tavoli {

QString historyLine(const QString& progressRecord, const CourseChoice& course,
                    const RunClock& times, const PracticeConditions& conditions) {
  constexpr int tableWidth = 11;
  constexpr int maxRest = 99999;
  constexpr int conditionsFrom = 10;
  const QString moment = u"yyyy/MM/ddHH:mm"_s;
  return cut(progressRecord, 1, progressNumbersFrom - 1) +
         fixedWidth(prWhichTable(course).first(), tableWidth) + times.開始時刻.toString(moment) +
         times.終了時刻.toString(moment) + digits(std::min(times.休憩時間, maxRest), 5) +
         cutFrom(progressRecord, progressNumbersFrom) +
         cutFrom(encodeConditions(conditions), conditionsFrom);
}

}  // namespace tavoli
