#include "progress/MemorySurvey.h"

#include "data/Database.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "progress/TableSurvey.h"
#include "system/Dialogs.h"

namespace tavoli {

MemorySurvey::MemorySurvey(const QString& dbFileWork, ProgressCounters& counters,
                           QString& specialTable, Dialogs& dialogs, SurveyScreen& screen)
    : m_dbFileWork(dbFileWork),
      m_counters(counters),
      m_specialTable(specialTable),
      m_dialogs(dialogs),
      m_screen(screen) {}

void MemorySurvey::surveyWords(Level level) {
  survey(level == 中学 ? tableJTDIC : tableSTDIC,
         [&](TableCursor& rows) { surveyWordTable(rows, m_counters.記憶単熟[level]); });
}

void MemorySurvey::surveySentences() {
  survey(tableBDIC, [&](TableCursor& rows) { tavoli::surveySentences(rows, m_counters.記憶文); });
}

void MemorySurvey::surveySpecial(const QString& table) {
  m_specialTable = trimBlanks(table);
  std::optional<Database> database;
  int dbOpenError = 0;
  openDatabase(m_dbFileWork, database, dbOpenError);
  const bool found =
      database && isSpecialTable(m_specialTable) && database->TableDefs().contains(m_specialTable);
  database.reset();
  if (!found) {
    m_dialogs.show(QStringLiteral("専門単熟DB %1 が見つかりません。"
                                  "「中学／高校／専門の選択」で指定し直してください。")
                       .arg(m_specialTable));
    return;
  }
  survey(m_specialTable,
         [&](TableCursor& rows) { surveyWordTable(rows, m_counters.記憶単熟[専門]); });
}

void MemorySurvey::survey(const QString& table, const std::function<void(TableCursor&)>& count) {
  if (!m_dialogs.ask(QStringLiteral("調査・更新をしますか？"))) return;
  m_screen.setBusy(true);
  std::optional<Database> database;
  int dbOpenError = 0;
  openDatabase(m_dbFileWork, database, dbOpenError);
  const auto rows = database ? database->OpenRecordset(table) : nullptr;
  if (rows) count(*rows);
  m_screen.setBusy(false);
  if (!rows) {
    m_dialogs.show(
        QStringLiteral("%1 の %2 を読めないので、調査できませんでした。").arg(m_dbFileWork, table));
    return;
  }
  m_screen.DispAchieve();
  m_dialogs.show(QStringLiteral("調査は終了しました。練習プログラムの終了時に更新されます。"));
  m_screen.showTables();
}

}  // namespace tavoli
