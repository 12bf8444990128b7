#include "practice/HomeCopies.h"

#include "data/LearnerFiles.h"
#include "system/Files.h"

namespace tavoli {

bool copyHome(const LearnerFiles& learner, Files& files, bool keepTexts) {
  const auto carry = [&](const QString& work, const QString& placed) {
    return !files.exists(work) || files.copy(work, placed) == FileResult::Ok;
  };
  const bool databaseHome = carry(learner.dbFileWork, learner.dbFilePlaced);
  // The working copy holds no more than the placed one: it is not to look newer.
  if (databaseHome) files.setModified(learner.dbFileWork, files.modified(learner.dbFilePlaced));

  bool historyHome = carry(learner.historyFileWork, learner.historyFilePlaced);
  if (!historyHome) {
    files.append(learner.historyFilePlaced, QByteArray());
    historyHome = carry(learner.historyFileWork, learner.historyFilePlaced);
  }
  const bool conditionsHome = carry(learner.condFileWork, learner.condFilePlaced);
  if (!keepTexts) {
    if (historyHome) files.remove(learner.historyFileWork);
    if (conditionsHome) files.remove(learner.condFileWork);
  }
  return databaseHome && historyHome && conditionsHome;
}

}  // namespace tavoli
