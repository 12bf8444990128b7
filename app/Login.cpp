#include "app/Login.h"

#include <QFileInfo>

#include "conditions/ConditionsStore.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "progress/ProgressStore.h"
#include "system/Clock.h"
#include "system/Dialogs.h"
#include "system/Files.h"

namespace tavoli {

namespace {

constexpr int maxIdLength = 8;
const QString standardUser = QStringLiteral("000");

}  // namespace

Login::Login(Module1& module, Files& files, const Clock& clock, Dialogs& dialogs,
             LoginScreen& screen)
    : m_module(module), m_files(files), m_clock(clock), m_dialogs(dialogs), m_screen(screen) {}

bool Login::next(const QString& typedId, const QString& typedPassword) {
  const QString id = trimBlanks(typedId);
  if (id.size() > maxIdLength)
    return fail(
        QStringLiteral("ユーザーＩＤ \"%1\" は長すぎます。8文字以下にして下さい。").arg(typedId));
  if (typedId.isEmpty()) {
    m_screen.setUserId(standardUser);
    return false;
  }
  if (id.contains(u'/') || id.contains(u'\\'))
    return fail(QStringLiteral("ユーザーID \"%1\" は未登録です。").arg(id));

  m_module.learner = learnerFiles(id, m_module.dbPath, m_module.dbPathDefault);
  if (m_module.learner.placedElsewhere && !m_files.exists(m_module.learner.dbFilePlaced))
    return fail(QStringLiteral("ユーザーID \"%1\" は未登録です。").arg(id));
  m_screen.setBusy(true);
  const bool brought = bringFiles();
  m_screen.setBusy(false);
  if (!brought) return false;
  if (!m_files.exists(m_module.learner.dbFileWork)) {
    return fail(QStringLiteral("ユーザーIDを入れ直してください。\n%1 : not found")
                    .arg(m_module.learner.dbFileWork));
  }
  if (!checkPassword(typedPassword)) return false;
  fetchTexts();
  backUp();
  return true;
}

bool Login::fail(const QString& message) {
  m_dialogs.show(message);
  return false;
}

bool Login::bringFiles() {
  const LearnerFiles& learner = m_module.learner;
  // A learner who does not exist leaves no trace.
  if (!learner.placedElsewhere && !m_files.exists(learner.dbFileWork)) return true;
  return takeWorkingCopy() && (!learner.placedElsewhere || bringPlacedCopy());
}

bool Login::takeWorkingCopy() {
  const QString& work = m_module.learner.dbFileWork;
  switch (m_lock.take(work)) {
    case FileLock::Result::Taken:
      return true;
    case FileLock::Result::TakenFromDeadProgram:
      m_dialogs.show(work + QStringLiteral(" が誤って使用中になっています。消去しました。"));
      return true;
    case FileLock::Result::HeldByLiveProgram:
      return fail(work + QStringLiteral(" が誤って使用中になっています。"));
    case FileLock::Result::Failed:
      break;
  }
  return fail(
      QStringLiteral("%1 のフォルダに書き込めません。書き込めるようにしてから入れ直してください。")
          .arg(work));
}

bool Login::bringPlacedCopy() {
  const LearnerFiles& learner = m_module.learner;
  if (!keepNewerWork()) return false;
  if (m_files.copy(learner.dbFilePlaced, learner.dbFileWork) == FileResult::Ok) return true;
  return fail(
      QStringLiteral("%1 を %2 に写せません。空き容量とフォルダを確かめてから入れ直してください。")
          .arg(learner.dbFilePlaced, learner.dbFileWork));
}

bool Login::keepNewerWork() {
  const LearnerFiles& learner = m_module.learner;
  if (!m_files.exists(learner.dbFileWork)) return true;
  const QString journal = QStringLiteral("-journal");
  if (m_files.exists(learner.dbFileWork + journal)) {
    // A program died while it wrote: opening the file takes the half-written changes back.
    std::optional<Database> recovered;
    int errorNumber = 0;
    openDatabase(learner.dbFileWork, recovered, errorNumber);
  }
  const bool newer = m_files.modified(learner.dbFileWork) > m_files.modified(learner.dbFilePlaced);
  const bool keep = newer && m_files.read(learner.dbFileWork) != m_files.read(learner.dbFilePlaced);
  const QString dated =
      learner.dbFileWork + m_clock.now().toString(QStringLiteral("-yyyyMMdd-HHmmss"));
  QString kept = dated;
  for (int n = 2; m_files.exists(kept); ++n) kept = dated + u'-' + QString::number(n);
  if (keep && m_files.rename(learner.dbFileWork, kept) != FileResult::Ok) {
    return fail(
        QStringLiteral("配置場所より新しい %1 を別名で保存できません。何も変更していません。")
            .arg(learner.dbFileWork));
  }
  // A journal that is still there belongs to the file that it lay beside, never to its successor.
  if (m_files.exists(learner.dbFileWork + journal)) {
    if (keep)
      m_files.rename(learner.dbFileWork + journal, kept + journal);
    else
      m_files.remove(learner.dbFileWork + journal);
  }
  if (keep) {
    m_dialogs.show(
        QStringLiteral("配置場所に戻されていない学習結果があったので %1 に保存しました。")
            .arg(kept));
  }
  return true;
}

bool Login::openWorkingCopy(std::optional<Database>& database) {
  const QString& work = m_module.learner.dbFileWork;
  int dbOpenError = 0;
  openDatabase(work, database, dbOpenError);
  if (database && !database->isSound()) {
    database.reset();
    dbOpenError = openError::notADatabase;
  }
  if (database) return true;
  if (dbOpenError == openError::engine) {
    m_screen.showEngineTrouble();
  } else {
    m_dialogs.show(
        QStringLiteral("ユーザーIDを入れ直してください。\n%1 : not found    Err.Number=%2")
            .arg(work)
            .arg(dbOpenError));
  }
  m_screen.focusUserId();
  return false;
}

bool Login::checkPassword(const QString& typedPassword) {
  std::optional<Database> database;
  if (!openWorkingCopy(database)) return false;
  std::unique_ptr<TableCursor> rsBDIC = database->OpenRecordset(tableBDIC);
  if (!rsBDIC) {
    m_dialogs.show(QStringLiteral("Error '91'"));
    m_screen.showEngineTrouble();
    return false;
  }
  rsBDIC->Seek(SeekOp::Equal, rowPassword);
  if (rsBDIC->NoMatch()) {
    rsBDIC.reset();
    if (!setFirstPassword(database, typedPassword)) return false;
    rsBDIC = database ? database->OpenRecordset(tableBDIC) : nullptr;
    if (!rsBDIC) return fail(QStringLiteral("Error '91'"));
    rsBDIC->Seek(SeekOp::Equal, rowPassword);
  }
  const Field password = rsBDIC->value(field問正コ);
  rsBDIC.reset();
  if (password && *password != typedPassword) {
    m_dialogs.show(QStringLiteral("パスワードを入れ直してください。"));
    m_screen.focusPassword();
    return false;
  }
  m_module.course = readCourse(*database, m_module.course);
  return loadFigures(*database);
}

bool Login::loadFigures(Database& database) {
  const ProgressOwner owner{m_module.learner.userId, m_module.course.COURSE, m_module.clock};
  m_module.backupDue = false;
  return loadProgress(database, owner, m_clock, m_dialogs, m_module.progress, m_module.backupDue) ||
         fail(QStringLiteral("%1 に学習の進捗を書き込めません。空き容量とフォルダを確かめてから"
                             "入れ直してください。")
                  .arg(m_module.learner.dbFileWork));
}

bool Login::setFirstPassword(std::optional<Database>& database, const QString& typedPassword) {
  if (!m_dialogs.ask(QStringLiteral("パスワードは「%1」です。").arg(typedPassword))) {
    m_screen.focusPassword();
    return false;
  }
  const bool stored = database->write([&] {
    const auto rows = database->OpenRecordset(tableBDIC);
    if (!rows) return false;
    rows->AddNew();
    rows->setValue(field文番, rowPassword);
    if (!typedPassword.isEmpty()) rows->setValue(field問正コ, typedPassword);
    rows->setValue(field記憶, QStringLiteral("0"));
    rows->setValue(field回数, QStringLiteral("00"));
    return rows->Update();
  });
  const LearnerFiles& learner = m_module.learner;
  if (!stored)
    return fail(QStringLiteral("%1 にパスワードを書き込めません。").arg(learner.dbFileWork));
  if (!learner.placedElsewhere) return true;
  database.reset();
  if (m_files.copy(learner.dbFileWork, learner.dbFilePlaced) != FileResult::Ok) {
    m_dialogs.show(
        QStringLiteral("%1 にパスワードを保存できませんでした。練習の終了時にもう一度保存します。")
            .arg(learner.dbFilePlaced));
  }
  return openWorkingCopy(database);
}

void Login::fetchTexts() {
  const LearnerFiles& learner = m_module.learner;
  if (!learner.placedElsewhere) return;
  for (const auto& [placed, work] :
       {std::pair(learner.condFilePlaced, learner.condFileWork),
        std::pair(learner.historyFilePlaced, learner.historyFileWork)}) {
    // A working text of an earlier run that did not get home is newer: it stays.
    if (!(m_files.modified(work) > m_files.modified(placed))) m_files.copy(placed, work);
  }
}

void Login::backUp() {
  const LearnerFiles& learner = m_module.learner;
  if (m_files.exists(learner.backupFile) && !m_module.backupDue) return;
  if (m_files.copy(learner.dbFilePlaced, learner.backupFile) != FileResult::Ok) {
    m_dialogs.show(
        QStringLiteral("個人データベースの控え %1 を作れませんでした。学習は続けられます。")
            .arg(learner.backupFile));
  }
}

void Login::leaveWithoutRun() {
  const LearnerFiles& learner = m_module.learner;
  if (!learner.placedElsewhere) return;
  m_files.setModified(learner.dbFileWork, m_files.modified(learner.dbFilePlaced));
}

}  // namespace tavoli
