// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Login.h"

#include "conditions/ConditionsStore.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "home/WorkingCopy.h"
#include "progress/ProgressStore.h"
#include "system/Clock.h"
#include "system/Dialogs.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int maxIdLength = 8;
const QString standardUser = u"000"_s;

}  // namespace

Login::Login(Module1& module, WorkingCopy& workingCopy, Files& files, const Clock& clock,
             Dialogs& dialogs)
    : m_module(module),
      m_workingCopy(workingCopy),
      m_files(files),
      m_clock(clock),
      m_dialogs(dialogs),
      m_contentOffer(module, workingCopy, files, clock, dialogs) {}

bool Login::next(LoginScreen& screen, const QString& typedId, const QString& typedPassword) {
  m_screen = &screen;
  const QString id = trimBlanks(typedId);
  if (id.size() > maxIdLength)
    return fail(u"ユーザーＩＤ \"%1\" は長すぎます。8文字以下にして下さい。"_s.arg(typedId));
  if (typedId.isEmpty()) {
    m_screen->setUserId(standardUser);
    return false;
  }
  m_module.learner = learnerFiles(id, m_module.dbPath, m_module.dbPathDefault);
  if (isUnregistered(id)) return fail(u"ユーザーID \"%1\" は未登録です。"_s.arg(id));
  if (logIn(typedPassword)) return true;
  m_workingCopy.letGo();
  return false;
}

bool Login::isUnregistered(const QString& id) const {
  if (id.contains(u'/') || id.contains(u'\\')) return true;
  // These would be the backup, or the file, of another learner.
  for (const QString& ending : {u"BackUp"_s, u".mdb"_s})
    if (id.endsWith(ending, Qt::CaseInsensitive)) return true;
  return m_module.learner.placedElsewhere && !m_files.exists(m_module.learner.dbFilePlaced);
}

bool Login::logIn(const QString& typedPassword) {
  m_screen->setBusy(true);
  const bool fetched = m_workingCopy.fetch();
  m_screen->setBusy(false);
  if (!fetched) return false;
  const QString& work = m_module.learner.dbFileWork;
  if (!m_files.exists(work))
    return fail(u"ユーザーIDを入れ直してください。\n%1 : not found"_s.arg(work));
  if (!enter(typedPassword)) return false;
  m_workingCopy.fetchTexts();
  backUp();
  return true;
}

bool Login::enter(const QString& typedPassword) {
  std::optional<Database> database = openWorkingCopy();
  if (!database || !checkPassword(database, typedPassword) || !offerContent(database)) return false;
  m_module.course = readCourse(*database, m_module.course);
  return loadFigures(*database);
}

bool Login::fail(const QString& message) {
  m_dialogs.show(message);
  return false;
}

std::optional<Database> Login::openWorkingCopy() {
  const QString& work = m_module.learner.dbFileWork;
  OpenedDatabase opened = openDatabase(work);
  if (opened.database && !opened.database->isSound())
    opened = {std::nullopt, openError::notADatabase};
  if (opened.database) return std::move(opened.database);
  if (opened.errorNumber == openError::engine) {
    m_screen->showEngineTrouble();
  } else {
    m_dialogs.show(u"ユーザーIDを入れ直してください。\n%1 : not found    Err.Number=%2"_s.arg(
        work, QString::number(opened.errorNumber)));
  }
  m_screen->focusUserId();
  return std::nullopt;
}

bool Login::checkPassword(std::optional<Database>& database, const QString& typedPassword) {
  std::unique_ptr<TableCursor> rsBDIC = database->OpenRecordset(tableBDIC);
  if (!rsBDIC) {
    m_dialogs.show(u"Error '91'"_s);
    m_screen->showEngineTrouble();
    return false;
  }
  rsBDIC->Seek(SeekOp::Equal, rowPassword);
  if (rsBDIC->NoMatch()) {
    rsBDIC.reset();
    if (!setFirstPassword(database, typedPassword)) return false;
    rsBDIC = database ? database->OpenRecordset(tableBDIC) : nullptr;
    if (!rsBDIC) return fail(u"Error '91'"_s);
    rsBDIC->Seek(SeekOp::Equal, rowPassword);
  }
  const Field password = rsBDIC->value(field問正コ);
  if (!password || *password == typedPassword) return true;
  m_dialogs.show(u"パスワードを入れ直してください。"_s);
  m_screen->focusPassword();
  return false;
}

bool Login::offerContent(std::optional<Database>& database) {
  if (!m_contentOffer.isDue(*database)) return true;
  database.reset();
  if (m_contentOffer.ask()) {
    m_screen->setBusy(true);
    m_contentOffer.takeIn();
    m_screen->setBusy(false);
  }
  database = openWorkingCopy();
  return database.has_value();
}

bool Login::loadFigures(Database& database) {
  const ProgressOwner owner{m_module.learner.userId, m_module.course.COURSE, m_module.clock};
  m_module.backupDue = false;
  return loadProgress(database, owner, m_clock, m_dialogs, m_module.progress, m_module.backupDue) ||
         fail(
             u"%1 に学習の進捗を書き込めません。空き容量とフォルダを確かめてから"
             "入れ直してください。"_s.arg(m_module.learner.dbFileWork));
}

bool Login::setFirstPassword(std::optional<Database>& database, const QString& typedPassword) {
  if (!m_dialogs.ask(u"パスワードは「%1」です。"_s.arg(typedPassword))) {
    m_screen->focusPassword();
    return false;
  }
  const bool stored = database->write([&] {
    const auto rows = database->OpenRecordset(tableBDIC);
    if (!rows) return false;
    rows->AddNew();
    rows->setValue(field文番, rowPassword);
    if (!typedPassword.isEmpty()) rows->setValue(field問正コ, typedPassword);
    rows->setValue(field記憶, u"0"_s);
    rows->setValue(field回数, u"00"_s);
    return rows->Update();
  });
  const LearnerFiles& learner = m_module.learner;
  if (!stored) return fail(u"%1 にパスワードを書き込めません。"_s.arg(learner.dbFileWork));
  if (!learner.placedElsewhere) return true;
  database.reset();
  if (!m_workingCopy.carryDatabaseHome()) {
    m_dialogs.show(
        u"%1 にパスワードを保存できませんでした。練習の終了時にもう一度保存します。"_s.arg(
            learner.dbFilePlaced));
  }
  database = openWorkingCopy();
  return database.has_value();
}

void Login::backUp() {
  const LearnerFiles& learner = m_module.learner;
  if (m_files.exists(learner.backupFile) && !m_module.backupDue) return;
  if (m_files.copy(learner.dbFilePlaced, learner.backupFile) != FileResult::Ok) {
    m_dialogs.show(u"個人データベースの控え %1 を作れませんでした。学習は続けられます。"_s.arg(
        learner.backupFile));
  }
}

}  // namespace tavoli
