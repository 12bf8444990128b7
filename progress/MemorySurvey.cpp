// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/MemorySurvey.h"

#include "data/Database.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "progress/TableSurvey.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

MemorySurvey::MemorySurvey(const QString& dbFileWork, ProgressCounters& counters,
                           QString& specialTable, Dialogs& dialogs, SurveyScreen& screen)
    : m_dbFileWork(dbFileWork),
      m_counters(counters),
      m_specialTable(specialTable),
      m_dialogs(dialogs),
      m_screen(screen) {}

void MemorySurvey::surveyWords(Level level) {
  survey([&](const Database& database) {
    return surveyWordTable(database, level == 中学 ? tableJTDIC : tableSTDIC,
                           m_counters.記憶単熟[level]);
  });
}

void MemorySurvey::surveySentences() {
  survey([&](const Database& database) {
    return tavoli::surveySentences(database, m_counters.記憶文);
  });
}

void MemorySurvey::surveySpecial() {
  std::optional<Database> database = openDatabase(m_dbFileWork).database;
  const QStringList tables = database ? specialTables(*database) : QStringList();
  database.reset();
  const std::optional<QString> chosen = m_screen.chooseSpecialTable(tables);
  if (!chosen) return;
  m_specialTable = trimBlanks(*chosen);
  if (!tables.contains(m_specialTable)) {
    m_dialogs.show(
        u"専門単熟DB %1 が見つかりません。"
        "「中学／高校／専門の選択」で指定し直してください。"_s.arg(m_specialTable));
    return;
  }
  survey([&](const Database& opened) {
    return surveyWordTable(opened, m_specialTable, m_counters.記憶単熟[専門]);
  });
}

void MemorySurvey::survey(const std::function<bool(const Database&)>& count) {
  if (!m_dialogs.ask(u"調査・更新をしますか？"_s)) return;
  m_screen.setBusy(true);
  std::optional<Database> database = openDatabase(m_dbFileWork).database;
  const ProgressCounters before = m_counters;
  const bool counted = database && count(*database);
  m_screen.setBusy(false);
  if (!counted) {
    m_counters = before;
    m_dialogs.show(
        u"%1 を読めないので、調査できませんでした。数値は元のままです。"_s.arg(m_dbFileWork));
    return;
  }
  m_screen.DispAchieve();
  m_dialogs.show(u"調査は終了しました。練習プログラムの終了時に更新されます。"_s);
  m_screen.showTables();
}

}  // namespace tavoli
