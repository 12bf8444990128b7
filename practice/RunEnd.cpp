#include "practice/RunEnd.h"

#include <algorithm>

#include "conditions/ConditionsStore.h"
#include "conditions/PastConditions.h"
#include "data/LearnerFiles.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "data/TextFile.h"
#include "home/WorkingCopy.h"
#include "practice/ItemWriteBack.h"
#include "practice/RunHistory.h"
#include "progress/ProgressRecord.h"
#include "progress/ProgressStore.h"
#include "system/Clock.h"
#include "system/Dialogs.h"
#include "system/Files.h"

namespace tavoli {

namespace {

/// How the conditions remember an item: a word as it is, a sentence by its number.
QString startEntry(const PracticeItem& item) {
  return item.isSentence() ? sentencePlaces(item.itemEnglish) + sentenceMark : item.itemEnglish;
}

}  // namespace

RunEnd::RunEnd(const LearnerFiles& learner, WorkingCopy& workingCopy, Files& files,
               const Clock& clock, Dialogs& dialogs)
    : m_learner(learner),
      m_workingCopy(workingCopy),
      m_files(files),
      m_clock(clock),
      m_dialogs(dialogs) {}

std::optional<ProgressCounters> RunEnd::closeRun(std::unique_ptr<LearningTables> tables,
                                                 PracticeSet& set, const RunResult& run) {
  std::optional<ProgressCounters> stored = saveRunEnd(std::move(tables), set, run);
  using Texts = WorkingCopy::Texts;
  if (stored) m_workingCopy.carryHome(run.backToConditions ? Texts::Stay : Texts::Go);
  return stored;
}

std::optional<ProgressCounters> RunEnd::saveRunEnd(std::unique_ptr<LearningTables> tables,
                                                   PracticeSet& set, const RunResult& run) {
  PracticeConditions& conditions = run.conditions;
  conditions.firstEnglish = startEntry(set.item(set.startIndex));
  conditions.lastEnglish = startEntry(set.item(std::clamp(run.POS, 1, set.itemCount())));
  ProgressCounters counted = run.counted;
  bookTime({m_learner.userId, run.course.COURSE, run.times}, counted, m_clock, m_dialogs);

  QStringList complaints;
  QString progressRecord;
  ProgressCounters stored;
  const auto writeAll = [&] {
    ItemWriteBack items(tables->database(), run.course);
    std::vector<bool> written(set.rowCount());
    for (int i = 1; i <= set.itemCount(); ++i) {
      if (!set.item(i).itemDirty || written[set.rowOf(i)]) continue;
      if (!items.WriteBackItem(set.item(i))) return false;
      written[set.rowOf(i)] = true;
    }
    complaints = items.complaints();
    stored = counted;
    items.growth().addTo(stored);
    progressRecord = buildProgressRecord(m_learner.userId, stored, run.times);
    return saveConditions(tables->rsTDIC(1), conditions) &&
           saveCourse(tables->rsBDIC(), run.course) &&
           saveProgressRecord(tables->rsBDIC(), progressRecord) &&
           saveAutoPlaySettings(tables->rsBDIC(), run.settings);
  };
  while (!tables->database().write(writeAll)) {
    if (!m_dialogs.ask(
            QStringLiteral("%1 に練習結果を書き込めません。データベースは練習前のままです。\n"
                           "もう一度書き込みますか。")
                .arg(m_learner.dbFileWork)))
      return std::nullopt;
  }
  tables.reset();
  for (const QString& complaint : std::as_const(complaints)) m_dialogs.show(complaint);
  appendTexts(run, progressRecord);
  return stored;
}

void RunEnd::appendTexts(const RunResult& run, const QString& progressRecord) {
  const auto tell = [&](const QString& path) {
    m_dialogs.show(QStringLiteral("%1 に今回の練習を追加できませんでした。練習結果は保存しました。")
                       .arg(path));
  };
  const QString line = historyLine(progressRecord, run.course, run.times, run.conditions);
  if (appendLine(m_files, m_learner.historyFileWork, line) != FileResult::Ok)
    tell(m_learner.historyFileWork);
  if (!appendPastConditions(m_files, m_learner.condFileWork,
                            pastConditionsLine(m_clock.now().date(), run.course, run.conditions)))
    tell(m_learner.condFileWork);
}

}  // namespace tavoli
