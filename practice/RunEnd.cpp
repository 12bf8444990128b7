// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/RunEnd.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "conditions/ConditionsStore.h"
#include "conditions/PastConditions.h"
#include "data/LearnerFiles.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "data/TextFile.h"
#include "practice/ItemWriteBack.h"
#include "practice/RunHistory.h"
#include "progress/ProgressRecord.h"
#include "progress/ProgressStore.h"
#include "system/Clock.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// How the conditions remember an item: a word as it is, a sentence by its number.
QString startEntry(const PracticeItem& item) {
  return item.isSentence() ? sentencePlaces(item.itemEnglish) + sentenceMark : item.itemEnglish;
}

/// Stores the shown items, each row once.
bool writeItems(ItemWriteBack& rows, const PracticeSet& set) {
  std::vector<bool> written(set.rowCount());
  for (int i = 1; i <= set.itemCount(); ++i) {
    if (!set.item(i).itemDirty || written[set.rowOf(i)]) continue;
    if (!rows.WriteBackItem(set.item(i))) return false;
    written[set.rowOf(i)] = true;
  }
  return true;
}

}  // namespace

RunEnd::RunEnd(const LearnerFiles& learner, Files& files, const Clock& clock)
    : m_learner(learner), m_files(files), m_clock(clock) {}

std::optional<StoredRun> RunEnd::saveRunEnd(std::unique_ptr<LearningTables> tables,
                                            const PracticeSet& set, const RunResult& run,
                                            const Retry& retry) {
  StoredRun stored{run.conditions, run.counted, {}};
  stored.conditions.firstEnglish = startEntry(set.item(set.startIndex));
  stored.conditions.lastEnglish = startEntry(set.item(std::clamp(run.POS, 1, set.itemCount())));
  const QString trouble =
      bookTime({m_learner.userId, run.course.COURSE, run.times}, stored.progress, m_clock);
  if (!trouble.isEmpty()) stored.notices.append(trouble);

  const ProgressCounters booked = stored.progress;
  QStringList complaints;
  QString progressRecord;
  const auto writeAll = [&] {
    ItemWriteBack items(tables->database(), run.course);
    if (!writeItems(items, set)) return false;
    complaints = items.complaints();
    stored.progress = booked;
    items.growth().addTo(stored.progress);
    progressRecord = buildProgressRecord(m_learner.userId, stored.progress, run.times);
    return saveConditions(tables->rsTDIC(1), stored.conditions) &&
           saveCourse(tables->rsBDIC(), run.course) &&
           saveProgressRecord(tables->rsBDIC(), progressRecord) &&
           saveAutoPlaySettings(tables->rsBDIC(), run.settings);
  };
  while (!tables->database().write(writeAll)) {
    const QString question =
        u"%1 に練習結果を書き込めません。データベースは練習前のままです。\n"
        "もう一度書き込みますか。"_s.arg(m_learner.dbFileWork);
    if (!retry(std::exchange(stored.notices, {}), question)) return std::nullopt;
  }
  tables.reset();
  stored.notices += complaints + appendTexts(run, stored.conditions, progressRecord);
  return stored;
}

QStringList RunEnd::appendTexts(const RunResult& run, const PracticeConditions& conditions,
                                const QString& progressRecord) {
  QStringList notices;
  const auto tell = [&](const QString& path) {
    notices.append(u"%1 に今回の練習を追加できませんでした。練習結果は保存しました。"_s.arg(path));
  };
  const QString line = historyLine(progressRecord, run.course, run.times, conditions);
  if (appendLine(m_files, m_learner.historyFileWork, line) != FileResult::Ok)
    tell(m_learner.historyFileWork);
  if (!appendPastConditions(m_files, m_learner.condFileWork,
                            pastConditionsLine(m_clock.now().date(), run.course, conditions)))
    tell(m_learner.condFileWork);
  return notices;
}

}  // namespace tavoli
