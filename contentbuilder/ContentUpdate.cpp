// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/ContentUpdate.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

#include "contentbuilder/ContentNotes.h"
#include "contentbuilder/ContentStore.h"
#include "contentbuilder/LessonUpdate.h"
#include "data/CurrentRecord.h"
#include "data/ItemState.h"
#include "data/Schema.h"
#include "progress/ProgressStore.h"
#include "system/Clock.h"
#include "system/FileLock.h"
#include "system/Files.h"

namespace tavoli {

namespace {

/// The record of the new content with the states and counts that were earned, which follow the text
/// of each 小問.
CurrentRecord withStates(CurrentRecord record, CurrentRecord learnt) {
  const auto textOf = [&](const SubQuestion& s) { return record.sentence ? s.正 : s.日本語; };
  for (SubQuestion& s : record.小問) {
    const auto same =
        std::find_if(learnt.小問.begin(), learnt.小問.end(), [&](const SubQuestion& l) {
          return textOf(l) == textOf(s) && !memoryName(l.記).isEmpty();
        });
    s.記 = MemoryState::全然;
    s.小問回数 = 0;
    if (same == learnt.小問.end()) continue;
    s.記 = same->記;
    s.小問回数 = same->小問回数;
    learnt.小問.erase(same);  // of two equal texts each is taken once
  }
  return record;
}

/// Brings one table of the new content into the learner's.
class TableMerge {
 public:
  TableMerge(const QString& table, Database& learner, const Renames& renames, ContentUpdate& update)
      : m_table(table), m_learner(learner), m_update(update) {
    for (const QString& old : renames.olds()) m_olds[renames.newest(old)].append(old);
  }

  bool merge(TableCursor& content) {
    const bool made = m_learner.TableDefs().contains(m_table);
    if (!made && !m_learner.createTable(m_table)) return false;
    m_rows = m_learner.OpenRecordset(m_table);
    if (!m_rows) return false;
    for (; !content.atEOF(); content.MoveNext()) {
      if (content.key() != rowContentEnd && isReservedKey(content.key())) continue;
      if (!mergeRow(content)) return false;
    }
    return !content.failed();
  }

 private:
  bool mergeRow(const TableCursor& content) {
    const QString key = content.key();
    const QString field = recordField(m_table);
    const TableCode kind = m_table == tableBDIC ? TableCode::sentences : TableCode::first;
    const CurrentRecord offered = ParseRecord(content.text(field), key, kind);
    if (key == rowContentEnd) return seek(key) || add(content, content.text(field));
    if (!offered.complete || content.isDamaged(field)) return false;
    if (!seek(key)) {
      ++m_update.added;
      return add(content, packRecord(withStates(offered, {})));
    }
    if (m_rows->isDamaged(field)) {
      m_update.untouched.push_back({QStringLiteral("%1「%2」").arg(m_table, key), 0,
                                    QStringLiteral("記録が壊れているので、そのままです。")});
      return true;
    }
    const CurrentRecord record = withStates(offered, ParseRecord(m_rows->text(field), key, kind));
    return change({{keyField(m_table), key},
                   {fieldレベル, content.value(fieldレベル)},
                   {field記憶, QString(stored(itemState(record, key).state))},
                   {field, packRecord(record)},
                   {field読上, content.value(field読上)}});
  }

  /// Goes to the learner's row of that key, or of one that it had before.
  bool seek(const QString& key) {
    for (const QString& name : QStringList(key) + m_olds.value(key)) {
      m_rows->Seek(SeekOp::Equal, name);
      if (!m_rows->NoMatch() && m_rows->key() == name) return true;
    }
    return false;
  }

  bool add(const TableCursor& content, const QString& record) {
    m_rows->AddNew();
    m_rows->setValue(keyField(m_table), content.key());
    m_rows->setValue(field記憶, QString(stored(MemoryState::全然)));
    m_rows->setValue(field回数, QStringLiteral("00"));
    m_rows->setValue(recordField(m_table), record);
    m_rows->setValue(field読上, content.value(field読上));
    if (m_table != tableBDIC) m_rows->setValue(fieldレベル, content.value(fieldレベル));
    return m_rows->Update();
  }

  bool change(const QList<std::pair<QString, Field>>& fields) {
    const bool renamed = m_rows->key() != fields.front().second;
    QList<std::pair<QString, Field>> differing;
    for (const auto& [field, value] : fields) {
      if (field == fieldレベル && m_table == tableBDIC) continue;
      const bool same = field == keyField(m_table) ? !renamed : m_rows->value(field) == value;
      if (!same) differing.emplace_back(field, value);
    }
    if (differing.isEmpty()) return true;
    m_rows->Edit();
    for (const auto& [field, value] : differing) m_rows->setValue(field, value);
    ++m_update.changed;
    m_update.renamed += renamed ? 1 : 0;
    return m_rows->Update();
  }

  QString m_table;
  Database& m_learner;
  ContentUpdate& m_update;
  QHash<QString, QStringList> m_olds;  ///< by what they are called now
  std::unique_ptr<TableCursor> m_rows;
};

class Updater {
 public:
  Updater(Files& files, const Clock& clock) : m_files(files), m_clock(clock) {}

  ContentUpdate update(const QString& newContent, const QString& learner, const QString& lessons,
                       KeptBy keptBy) {
    if (!openContent(newContent) || (keptBy == KeptBy::Update && !keep(learner)) ||
        !mayBegin(learner) || !open(learner, m_learner) || !isNewer(newContent, learner) ||
        !backUp(learner))
      return m_update;
    const bool stored = m_learner->write([&] { return mergeAll(); });
    if (!stored) {
      // A backup that stays is of what the learner has.
      static_cast<void>(m_files.remove(m_update.backup));
      return fail(learner, QStringLiteral("取り込めませんでした。何も変更していません。"
                                          "ディスクの空きと権限を確かめてください。"));
    }
    if (!lessons.isEmpty()) updateLessons(m_files, lessons, m_before, m_notes, m_update.untouched);
    return m_update;
  }

 private:
  ContentUpdate& fail(const QString& file, const QString& message) {
    m_update = {};
    m_update.problems.push_back({file, 0, message});
    return m_update;
  }

  bool open(const QString& path, std::optional<Database>& database) {
    return take(path, openDatabase(path), database);
  }

  /// What came with an installed program may only be read.
  bool openContent(const QString& path) {
    OpenedDatabase opened = openDatabase(path);
    if (opened.errorNumber == openError::noAccess) opened.database = peekDatabase(path);
    return take(path, std::move(opened), m_content);
  }

  bool take(const QString& path, OpenedDatabase opened, std::optional<Database>& database) {
    database = std::move(opened.database);
    if (database && database->isSound() && database->TableDefs().contains(tableBDIC)) return true;
    fail(path, QStringLiteral("個人データベースとして開けませんでした（エラー番号%1）。")
                   .arg(opened.errorNumber));
    return false;
  }

  bool keep(const QString& learner) {
    const FileLock::Result lock = m_lock.take(learner);
    if (lock != FileLock::Result::HeldByLiveProgram && lock != FileLock::Result::Failed)
      return true;
    fail(learner, QStringLiteral("使用中か、フォルダーに書き込めないので、取り込めません。"
                                 "学習を終えてからにしてください。"));
    return false;
  }

  bool mayBegin(const QString& learner) {
    const QStringList left = unstoredBeside(learner);
    if (left.isEmpty()) return true;
    fail(learner, QStringLiteral("%1 にまだ保存されていない学習があります。一度ログインしてから"
                                 "取り込んでください。")
                      .arg(left.first()));
    return false;
  }

  bool isNewer(const QString& newContent, const QString& learner) {
    m_notes = notesIn(*m_content);
    m_before = notesIn(*m_learner);
    const int number = contentNumber(m_notes);
    if (number < 1)
      fail(newContent, QStringLiteral("教材の番号がないので、取り込めません。"));
    else if (number <= contentNumber(m_before))
      fail(learner, QStringLiteral("教材はすでに番号%1です。番号%2は取り込みません。")
                        .arg(contentNumber(m_before))
                        .arg(number));
    return m_update.problems.empty();
  }

  bool backUp(const QString& learner) {
    const QString dated = learner + m_clock.now().toString(QStringLiteral("-yyyyMMdd-HHmmss"));
    m_update.backup = dated;
    for (int n = 2; m_files.exists(m_update.backup); ++n)
      m_update.backup = dated + u'-' + QString::number(n);
    if (m_files.copy(learner, m_update.backup) == FileResult::Ok) return true;
    fail(learner, QStringLiteral("控えを作れないので、取り込みません。ディスクの空きと権限を"
                                 "確かめてください。"));
    return false;
  }

  bool mergeAll() {
    const Renames renames(m_notes);
    for (const QString& table : m_content->TableDefs()) {
      const bool content =
          table == tableBDIC || table == tableJTDIC || table == tableSTDIC || isSpecialTable(table);
      if (!content) continue;
      const auto rows = m_content->OpenRecordset(table);
      if (!rows || !TableMerge(table, *m_learner, renames, m_update).merge(*rows)) return false;
    }
    return storeNotes(m_notes, *m_learner) && recountMemory(*m_learner);
  }

  Files& m_files;
  const Clock& m_clock;
  FileLock m_lock;
  std::optional<Database> m_content;
  std::optional<Database> m_learner;
  ContentNotes m_notes;   ///< of the new content
  ContentNotes m_before;  ///< of the content that the learner has
  ContentUpdate m_update;
};

}  // namespace

QStringList unstoredBeside(const QString& learner) {
  const QFileInfo file(learner);
  QString bare = file.fileName();
  if (bare.endsWith(QStringLiteral(".mdb"))) bare.chop(4);
  return file.dir().entryList(
      {file.fileName() + QStringLiteral("-journal"), bare + QStringLiteral(".run.*")}, QDir::Files);
}

ContentUpdate updateContent(Files& files, const Clock& clock, const QString& newContent,
                            const QString& learner, const QString& lessons, KeptBy keptBy) {
  return Updater(files, clock).update(newContent, learner, lessons, keptBy);
}

}  // namespace tavoli
