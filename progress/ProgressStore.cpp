// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/ProgressStore.h"

#include "data/Database.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "progress/ProgressRecord.h"
#include "progress/TableSurvey.h"
#include "system/Clock.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString firstSpecialTable = u"BusinessTOEIC"_s;

bool isLaterMonth(QDate day, QDate before) {
  return std::pair(day.year(), day.month()) > std::pair(before.year(), before.month());
}

/// Of a new learner. A table that is not there, or cannot be read, counts nothing.
ProgressCounters firstCounters(const Database& database) {
  ProgressCounters counters;
  const auto survey = [&](const QString& table, Level level) {
    Three memory{};
    if (surveyWordTable(database, table, memory)) counters.記憶単熟[level] = memory;
  };
  survey(tableJTDIC, 中学);
  survey(tableSTDIC, 高校);
  survey(firstSpecialTable, 専門);
  ByLevel sentences{};
  if (surveySentences(database, sentences)) counters.記憶文 = sentences;
  return counters;
}

}  // namespace

QString bookTime(const ProgressOwner& owner, ProgressCounters& counters, const Clock& clock) {
  RunClock& times = owner.times;
  const QDateTime now = clock.now();
  times.終了時刻 = now;
  const qint64 learnt = times.開始時刻.secsTo(times.終了時刻) - times.休憩時間;
  if (learnt >= 0) {
    counters.時間[courseLevel(owner.COURSE)][0] += static_cast<int>(learnt);
    return {};
  }
  const QString format = u"yyyy/MM/dd HH:mm:ss"_s;
  const QString trouble =
      u"DateDiff(\"s\", 開始時刻, 終了時刻 ) - 休憩時間 < 0\n"
      "開始時刻 %1\n休憩時間 %2秒\n現在 %3"_s.arg(times.開始時刻.toString(format))
          .arg(times.休憩時間)
          .arg(now.toString(format));
  times.終了時刻 = times.開始時刻;
  times.休憩時間 = 0;
  return trouble;
}

bool saveProgressRecord(TableCursor& rsBDIC, const QString& progressRecord) {
  if (!rsBDIC.EditOrAddNew(rowProgress, {{field記憶, u"0"_s}, {field回数, u"00"_s}})) return false;
  rsBDIC.setValue(field問正コ, progressRecord);
  return rsBDIC.Update();
}

bool loadProgress(Database& database, const ProgressOwner& owner, const Clock& clock,
                  Dialogs& dialogs, ProgressCounters& counters, bool& backupDue) {
  const auto rsBDIC = database.OpenRecordset(tableBDIC);
  if (!rsBDIC) return false;
  rsBDIC->Seek(SeekOp::Equal, rowProgress);
  if (rsBDIC->failed()) return false;
  if (rsBDIC->NoMatch()) {
    counters = firstCounters(database);
    // A new learner has not learnt yet.
    owner.times.開始時刻 = clock.now();
  } else {
    const StoredProgress stored = parseProgressRecord(rsBDIC->text(field問正コ));
    counters = stored.counters;
    if (!stored.previousStart.isValid() ||
        !isLaterMonth(clock.now().date(), stored.previousStart.date()))
      return true;
    counters.rollOver();
    backupDue = true;
  }
  const QString trouble = bookTime(owner, counters, clock);
  if (!trouble.isEmpty()) dialogs.show(trouble);
  const QString progressRecord = buildProgressRecord(owner.userId, counters, owner.times);
  return database.write([&] { return saveProgressRecord(*rsBDIC, progressRecord); });
}

bool recountMemory(Database& database) {
  const auto rsBDIC = database.OpenRecordset(tableBDIC);
  if (!rsBDIC) return false;
  rsBDIC->Seek(SeekOp::Equal, rowCourse);
  const QString chosen = trimBlanks(rsBDIC->text(field問正コ));
  rsBDIC->Seek(SeekOp::Equal, rowProgress);
  if (rsBDIC->NoMatch()) return !rsBDIC->failed();
  const QString before = rsBDIC->text(field問正コ);
  ProgressCounters counters = parseProgressRecord(before).counters;
  const QString special = chosen.isEmpty() ? firstSpecialTable : chosen;
  const auto survey = [&](const QString& table, Level level) {
    return !database.TableDefs().contains(table) ||
           surveyWordTable(database, table, counters.記憶単熟[level]);
  };
  if (!survey(tableJTDIC, 中学) || !survey(tableSTDIC, 高校) || !survey(special, 専門) ||
      !surveySentences(database, counters.記憶文))
    return false;
  const QString figures = buildProgressRecord(QString(), counters, RunClock());
  return saveProgressRecord(
      *rsBDIC, fixedWidth(before, progressNumbersFrom - 1) +
                   cut(figures, progressNumbersFrom, progressTimesFrom - progressNumbersFrom) +
                   cutFrom(before, progressTimesFrom));
}

}  // namespace tavoli
