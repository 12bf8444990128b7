// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ContentOffer.h"

#include <algorithm>

#include "app/Module1.h"
#include "contentbuilder/ContentNotes.h"
#include "contentbuilder/ContentUpdate.h"
#include "data/Database.h"
#include "data/Schema.h"
#include "home/Placement.h"
#include "home/WorkingCopy.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr size_t mostNamed = 5;

int deliveredNumber(const QString& path) {
  std::optional<Database> content = peekDatabase(path);
  return content ? contentNumber(*content) : 0;
}

/// Whether a database without a number was delivered, when content had none yet, and is not
/// somebody's own: it then asks some question in the very words of the new content.
bool hasDeliveredQuestion(Database& learner, const QString& path) {
  std::optional<Database> content = peekDatabase(path);
  const auto rows = learner.OpenRecordset(tableBDIC, {field問正コ});
  const auto delivered = content ? content->OpenRecordset(tableBDIC, {field問正コ}) : nullptr;
  const auto question = [](const TableCursor& row) {
    return row.text(field問正コ).section(u'|', 0, 0);
  };
  for (; rows && delivered && rows->hasRow() && !isReservedKey(rows->key()); rows->MoveNext()) {
    delivered->Seek(SeekOp::Equal, rows->key());
    if (!delivered->NoMatch() && question(*delivered) == question(*rows)) return true;
  }
  return false;
}

}  // namespace

ContentOffer::ContentOffer(const Module1& module, WorkingCopy& workingCopy, Files& files,
                           const Clock& clock, Dialogs& dialogs)
    : m_module(module),
      m_workingCopy(workingCopy),
      m_files(files),
      m_clock(clock),
      m_dialogs(dialogs) {}

bool ContentOffer::isDue(Database& learner) const {
  const QString& path = m_module.deliveredContent;
  const int number = contentNumber(learner);
  if (deliveredNumber(path) <= std::max(number, declinedNumber(learner))) return false;
  return unstoredBeside(m_module.learner.dbFileWork).isEmpty() &&
         (number > 0 || hasDeliveredQuestion(learner, path));
}

bool ContentOffer::ask() {
  if (m_dialogs.ask(u"新しい教材があります。取り込みますか。"_s)) return true;
  std::optional<Database> learner = openDatabase(m_module.learner.dbFileWork).database;
  const int number = deliveredNumber(m_module.deliveredContent);
  // Where that cannot be noted the learner is asked once more.
  if (learner) static_cast<void>(learner->write([&] { return storeDeclined(number, *learner); }));
  return false;
}

void ContentOffer::takeIn() {
  const ContentUpdate update =
      updateContent(m_files, m_clock, m_module.deliveredContent, m_module.learner.dbFileWork,
                    lessonFolder(m_module.applicationFolder), KeptBy::Caller);
  if (!update.problems.empty()) {
    const Problem& problem = update.problems.front();
    m_dialogs.show(
        u"新しい教材を取り込めませんでした。学習は今の教材で続けられます。\n%1：%2"_s.arg(
            problem.file, problem.message));
    return;
  }
  if (!update.untouched.empty()) tellUntouched(update.untouched);
  const LearnerFiles& learner = m_module.learner;
  if (!learner.placedElsewhere || m_workingCopy.carryDatabaseHome()) return;
  m_dialogs.show(u"%1 に新しい教材を保存できませんでした。練習の終了時にもう一度保存します。"_s.arg(
      learner.dbFilePlaced));
}

void ContentOffer::tellUntouched(const Problems& untouched) {
  QStringList names;
  for (size_t i = 0; i < std::min(untouched.size(), mostNamed); ++i)
    names.append(untouched[i].file);
  if (untouched.size() > mostNamed) names.append(u"ほか"_s);
  m_dialogs.show(
      u"新しい教材を取り込みましたが、壊れているか書き込めない%1件（%2）は前のままです。"_s.arg(
          QString::number(untouched.size()), names.join(u'、')));
}

}  // namespace tavoli
