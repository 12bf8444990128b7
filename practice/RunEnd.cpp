#include "practice/RunEnd.h"

#include <algorithm>

#include "conditions/ConditionsStore.h"
#include "conditions/PastConditions.h"
#include "data/Schema.h"
#include "data/Text.h"
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

ItemState itemState(const CurrentRecord& record, const QString& key) {
  bool any全然 = false;
  bool anyうろ覚え = false;
  bool any完全 = false;
  ItemState result;
  for (int k = 1; k <= record.小問数 && !record.記(k).isNull(); ++k) {
    const QChar code = record.記(k);
    any全然 = any全然 || code == memory全然;
    anyうろ覚え = anyうろ覚え || code == memoryうろ覚え;
    any完全 = any完全 || code == memory完全;
    if (memoryName(code).isEmpty()) {
      result.complaints.append(
          (record.sentence ? QStringLiteral("Stop34") : QStringLiteral("Stop38")) + u' ' + key);
    }
  }
  if (!any全然 && !anyうろ覚え) {
    if (any完全) {
      result.state = memory完全;
    } else {
      result.complaints.append(
          (record.sentence ? QStringLiteral("Stop36") : QStringLiteral("Stop39")) + u' ' + key);
    }
  }
  // One blank of a sentence that is not known makes the sentence unknown; a word is known a little
  // as soon as one of its meanings is.
  if (any全然 && (record.sentence || (!anyうろ覚え && !any完全))) result.state = memory全然;
  return result;
}

RunEnd::RunEnd(const LearnerFiles& learner, Files& files, const Clock& clock, Dialogs& dialogs)
    : m_learner(learner), m_files(files), m_clock(clock), m_dialogs(dialogs) {}

bool RunEnd::closeRun(std::unique_ptr<LearningTables> tables, PracticeSet& set,
                      const RunResult& run) {
  PracticeConditions& conditions = run.conditions;
  conditions.firstEnglish = startEntry(set.item(set.startIndex));
  conditions.lastEnglish = startEntry(set.item(std::clamp(run.POS, 1, set.itemCount())));
  const auto writeAll = [&] {
    m_complaints.clear();
    for (int i = 1; i <= set.itemCount(); ++i)
      if (set.item(i).itemDirty && !WriteBackItem(*tables, set.item(i))) return false;
    return saveConditions(tables->rsTDIC(1), conditions) &&
           saveCourse(tables->rsBDIC(), run.course) &&
           saveAutoPlaySettings(tables->rsBDIC(), run.settings);
  };
  while (!tables->database().write(writeAll)) {
    if (!m_dialogs.ask(
            QStringLiteral("%1 に練習結果を書き込めません。データベースは練習前のままです。\n"
                           "もう一度書き込みますか。")
                .arg(m_learner.dbFileWork)))
      return false;
  }
  tables.reset();
  for (const QString& complaint : std::as_const(m_complaints)) m_dialogs.show(complaint);
  if (!appendPastConditions(m_files, m_learner.condFileWork,
                            pastConditionsLine(m_clock.now().date(), run.course, conditions))) {
    m_dialogs.show(
        QStringLiteral("%1 に今回の練習条件を追加できませんでした。練習結果は保存しました。")
            .arg(m_learner.condFileWork));
  }
  if (m_learner.placedElsewhere) copyHome(run.backToConditions);
  return true;
}

bool RunEnd::WriteBackItem(LearningTables& tables, PracticeItem& item) {
  const ItemState summed =
      itemState(ParseRecord(item.itemRecord, item.itemEnglish, item.itemTable), item.itemEnglish);
  m_complaints += summed.complaints;
  if (memoryName(item.itemMemory).isEmpty()) {
    m_complaints.append(
        (item.isSentence() ? QStringLiteral("Stop37 ") : QStringLiteral("Stop3B ")) +
        item.itemEnglish);
  }
  item.itemMemory = summed.state;
  if (!item.isSentence()) {
    const int place = item.itemTable.unicode() - u'0';
    return updateDictionaryRow(tables.rsTDIC(place), item);
  }
  TableCursor& rows = tables.rsBDIC();
  rows.Seek(SeekOp::Equal, item.itemEnglish);
  if (rows.NoMatch()) return !rows.failed();
  rows.Edit();
  rows.setValue(field記憶, QString(item.itemMemory));
  rows.setValue(field回数, digits(item.itemTimes, 2));
  rows.setValue(field問正コ, item.itemRecord);
  return rows.Update();
}

bool RunEnd::updateDictionaryRow(TableCursor& rows, const PracticeItem& item) {
  rows.Seek(SeekOp::Equal, item.itemEnglish);
  if (rows.failed()) return false;
  if (rows.NoMatch()) {
    m_complaints.append(QStringLiteral("No Match rsTDIC :##%1##").arg(item.itemEnglish));
    return true;
  }
  // Seek lands on the exactly equal row wherever there is one.
  if (rows.key() != item.itemEnglish) {
    m_complaints.append(QStringLiteral(":%1: not found in rsTDIC").arg(item.itemEnglish));
    return true;
  }
  rows.Edit();
  rows.setValue(fieldレベル, item.itemLevel);
  rows.setValue(field記憶, QString(item.itemMemory));
  rows.setValue(field回数, digits(item.itemTimes, 2));
  rows.setValue(field発同日コ, item.itemRecord);
  return rows.Update();
}

void RunEnd::copyHome(bool keepTexts) {
  const auto carry = [&](const QString& work, const QString& placed) {
    return !m_files.exists(work) || m_files.copy(work, placed) == FileResult::Ok;
  };
  bool home = carry(m_learner.dbFileWork, m_learner.dbFilePlaced);
  home = carry(m_learner.historyFileWork, m_learner.historyFilePlaced) && home;
  home = carry(m_learner.condFileWork, m_learner.condFilePlaced) && home;
  if (home) {
    // The two texts are fetched anew at the next login; the database stays as the working copy.
    m_files.setModified(m_learner.dbFileWork, m_files.modified(m_learner.dbFilePlaced));
    if (keepTexts) return;
    m_files.remove(m_learner.historyFileWork);
    m_files.remove(m_learner.condFileWork);
    return;
  }
  m_dialogs.show(
      QStringLiteral("練習結果を配置場所に戻せませんでした。結果はこの機械の %1 に残っています。")
          .arg(m_learner.dbFileWork));
}

}  // namespace tavoli
