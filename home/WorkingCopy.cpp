// SPDX-License-Identifier: GPL-3.0-or-later

#include "home/WorkingCopy.h"

#include <QFileInfo>

#include "data/LearnerFiles.h"
#include "data/Machine.h"
#include "data/TextFile.h"
#include "home/KeptCopies.h"
#include "home/LineTexts.h"
#include "system/Clock.h"
#include "system/Dialogs.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString inUse = u" が誤って使用中になっています。"_s;

QString holderText(const FileLock::Holder& holder) {
  const QString since = holder.since.toString(u"yyyy/MM/dd HH:mm"_s);
  const QString who =
      holder.program.isEmpty()
          ? u"どのプログラムのロックか分かりません（%1 から）。"_s.arg(since)
          : u"パソコン %1 の %2（プロセス番号 %3）が %4 から使用中です。"_s.arg(
                holder.host, holder.program, QString::number(holder.processId), since);
  return who + u"\nロックファイル："_s + holder.lockPath;
}

QByteArray textOf(const QStringList& lines) {
  return (lines.join(u'\n') + u'\n').toUtf8();
}

}  // namespace

WorkingCopy::WorkingCopy(const LearnerFiles& learner, Files& files, const Clock& clock,
                         Dialogs& dialogs)
    : m_learner(learner), m_files(files), m_clock(clock), m_dialogs(dialogs) {}

bool WorkingCopy::fail(const QString& message) {
  m_dialogs.show(message);
  return false;
}

bool WorkingCopy::isLink(const QString& placed) {
  if (!QFileInfo(placed).isSymLink()) return false;
  m_dialogs.show(u"%1 はリンクなので使いません。本物のファイルに替えてください。"_s.arg(placed));
  return true;
}

bool WorkingCopy::fetch() {
  // A learner who does not exist leaves no trace.
  if (!m_learner.placedElsewhere && !m_files.exists(m_learner.dbFileWork)) return true;
  if (!keepForThisProgram()) return false;
  const QString folder = QFileInfo(m_learner.dbFileWork).path();
  if (!makeMachine(m_files, folder)) {
    m_dialogs.show(
        u"%1 を作れないので、別の機械での学習と区別できないことが"
        "あります。学習は続けられます。"_s.arg(folder + u'/' + machineFileName));
  }
  return !m_learner.placedElsewhere || fetchDatabase();
}

bool WorkingCopy::keepForThisProgram() {
  const QString& work = m_learner.dbFileWork;
  switch (m_lock.take(work)) {
    case FileLock::Result::Taken:
      return true;
    case FileLock::Result::TakenFromDeadProgram:
      m_dialogs.show(work + inUse + u"消去しました。\n学習結果は消えていません。"_s);
      return true;
    case FileLock::Result::HeldByLiveProgram:
      return fail(work + inUse);
    case FileLock::Result::HeldElsewhere:
      return offerToTakeOver();
    case FileLock::Result::Failed:
      break;
  }
  return fail(
      u"%1 のフォルダに書き込めません。書き込めるようにしてから入れ直してください。"_s.arg(work));
}

bool WorkingCopy::offerToTakeOver() {
  const FileLock::Holder& holder = m_lock.holder();
  const QString text = m_learner.dbFileWork + inUse + u'\n' + holderText(holder);
  const bool fresh = holder.since.addDays(1) > m_clock.now();
  if (fresh && !holder.program.isEmpty()) return fail(text);
  if (!m_dialogs.ask(text + u"\n使用中でないことが確かなら、ロックを外せます。"
                            "外して続けますか。"_s))
    return false;
  // Where it stays it cannot be taken either.
  static_cast<void>(m_files.remove(holder.lockPath));
  return m_lock.take(m_learner.dbFileWork) == FileLock::Result::Taken ||
         fail(m_learner.dbFileWork + inUse);
}

bool WorkingCopy::fetchDatabase() {
  const QString& work = m_learner.dbFileWork;
  const QString& placed = m_learner.dbFilePlaced;
  if (isLink(placed)) return false;
  const QString notFetched =
      u"%1 を %2 に写せません。空き容量とフォルダを確かめてから入れ直してください。"_s.arg(placed,
                                                                                           work);
  if (!QFileInfo(placed).isReadable()) return fail(notFetched);
  if (m_files.exists(work)) {
    takeBackHalfWritten(m_files, work);
    const CopyRelation found = relation();
    if (found == CopyRelation::Same) return true;
    if (found != CopyRelation::WorkOlder && !keepNewerWork(found)) return false;
  }
  // A journal that is still there is of an older file, and would be read into the new one.
  const QString journal = work + journalEnding;
  if (m_files.exists(journal) && m_files.remove(journal) != FileResult::Ok) return fail(notFetched);
  return m_files.copy(placed, work) == FileResult::Ok || fail(notFetched);
}

CopyRelation WorkingCopy::relation() const {
  const CopyPast work = pastOf(m_learner.dbFileWork);
  const CopyPast placed = pastOf(m_learner.dbFilePlaced);
  // The descent is a part of the content.
  const bool same = work.descent == placed.descent &&
                    sameContent(m_files, m_learner.dbFileWork, m_learner.dbFilePlaced);
  return compareCopies(work, placed, same);
}

bool WorkingCopy::keepNewerWork(CopyRelation relation) {
  const std::optional<QString> kept = keepAside(m_files, m_learner.dbFileWork, m_clock.now());
  if (!kept) {
    return fail(u"配置場所より新しい %1 を別名で保存できません。何も変更していません。"_s.arg(
        m_learner.dbFileWork));
  }
  QString message =
      u"配置場所に戻されていない学習結果があったので %1 に保存しました。"_s.arg(*kept);
  if (relation == CopyRelation::Diverged)
    message += u"\n配置場所のデータにも別の変更があります。両方とも残してあります。"_s;
  m_dialogs.show(message);
  return true;
}

void WorkingCopy::fetchTexts() {
  if (!m_learner.placedElsewhere) return;
  const LearnerFiles& l = m_learner;
  // A text that cannot be fetched is joined with the placed one on its way home all the same.
  static_cast<void>(fetchText(l.condFilePlaced, l.condFileWork, maxPastConditions));
  static_cast<void>(fetchText(l.historyFilePlaced, l.historyFileWork, noEnd));
}

bool WorkingCopy::fetchText(const QString& placed, const QString& work, qsizetype most) {
  if (!m_files.exists(placed) || isLink(placed)) return true;
  const std::optional<QStringList> there = readLines(m_files, placed);
  const std::optional<QStringList> here = readLines(m_files, work);
  if (!there || !here) {
    if (sameContent(m_files, work, placed)) return true;
    if (m_files.exists(work) && !keepAside(m_files, work, m_clock.now())) return false;
    return m_files.copy(placed, work) == FileResult::Ok;
  }
  const QStringList joined = joinedLines(*there, *here, most);
  if (joined == *there) return m_files.copy(placed, work) == FileResult::Ok;
  return joined == *here || m_files.write(work, textOf(joined)) == FileResult::Ok;
}

bool WorkingCopy::carryDatabaseHome() {
  const LearnerFiles& l = m_learner;
  return !isLink(l.dbFilePlaced) && m_files.exists(l.dbFileWork) && keepChangedPlacedCopy() &&
         m_files.copy(l.dbFileWork, l.dbFilePlaced) == FileResult::Ok;
}

bool WorkingCopy::keepChangedPlacedCopy() {
  const QString& placed = m_learner.dbFilePlaced;
  const std::optional<Descent> there = pastOf(placed).descent;
  if (!there || holdsAllOf(pastOf(m_learner.dbFileWork).descent.value_or(Descent()), *there))
    return true;
  const QString kept = datedName(m_files, placed, m_clock.now());
  if (m_files.copy(placed, kept) != FileResult::Ok) return false;
  m_dialogs.show(
      u"配置場所の %1 は別の機械で変更されていたので %2 に保存しました。"_s.arg(placed, kept));
  return true;
}

void WorkingCopy::carryHome(Texts texts) {
  if (!m_learner.placedElsewhere) return;
  const bool databaseHome = carryDatabaseHome();
  if (carryTextsHome(texts) && databaseHome) return;
  m_dialogs.show(u"練習結果を配置場所に戻せなかったので、この機械の %1 に残してあります。"_s.arg(
      QFileInfo(m_learner.dbFileWork).path()));
}

bool WorkingCopy::carryTextsHome(Texts texts) {
  const LearnerFiles& l = m_learner;
  bool historyHome = carryText(l.historyFileWork, l.historyFilePlaced, noEnd);
  if (!historyHome && m_files.append(l.historyFilePlaced, QByteArray()) == FileResult::Ok)
    historyHome = carryText(l.historyFileWork, l.historyFilePlaced, noEnd);
  const bool conditionsHome = carryText(l.condFileWork, l.condFilePlaced, maxPastConditions);
  if (texts == Texts::Go) {
    // One that stays is joined with the placed text at the next login.
    if (historyHome) static_cast<void>(m_files.remove(l.historyFileWork));
    if (conditionsHome) static_cast<void>(m_files.remove(l.condFileWork));
  }
  return historyHome && conditionsHome;
}

bool WorkingCopy::carryText(const QString& work, const QString& placed, qsizetype most) {
  if (!m_files.exists(work)) return true;
  if (isLink(placed)) return false;
  const std::optional<QStringList> there = readLines(m_files, placed);
  const std::optional<QStringList> here = readLines(m_files, work);
  if (there && here) {
    const QStringList joined = joinedLines(*there, *here, most);
    if (joined == *there) return true;
    if (joined != *here) return m_files.write(placed, textOf(joined)) == FileResult::Ok;
  } else if (m_files.exists(placed) && !sameContent(m_files, work, placed) &&
             m_files.copy(placed, datedName(m_files, placed, m_clock.now())) != FileResult::Ok) {
    return false;
  }
  return m_files.copy(work, placed) == FileResult::Ok;
}

void WorkingCopy::leave() {
  if (!m_learner.placedElsewhere) return;
  // What does not get home stays here, where the next login finds it.
  if (relation() == CopyRelation::PlacedOlder) static_cast<void>(carryDatabaseHome());
  static_cast<void>(carryTextsHome(Texts::Stay));
}

void WorkingCopy::letGo() {
  m_lock.letGo();
}

}  // namespace tavoli
