// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/ProgressReport.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr double secondsPerHour = 3600;
constexpr int chartsAPage = 6;

QString levelName(Level level) {
  static const std::array names = {u"中学"_s, u"高校"_s, u"専門"_s};
  return names[level];
}

/// Thousands are divided by commas.
QLocale locale() {
  QLocale locale = QLocale::c();
  locale.setNumberOptions(QLocale::DefaultNumberOptions);
  return locale;
}

QString hours(int seconds) {
  return locale().toString(seconds / secondsPerHour, 'f', 2) + u" 時間"_s;
}

/// An empty table by its format string: the column titles, each behind "|" and with ">" where it
/// stands to the right; behind ";" the corner title and the row titles.
NumberTable titledTable(const QString& format) {
  const qsizetype end = format.indexOf(u';');
  NumberTable table;
  table.columns = format.first(end).remove(u'>').split(u'|').mid(1);
  // The blanks that once aligned the titles are the table's business.
  for (const QString& title : format.sliced(end + 1).split(u'|'))
    table.rows.append(title.trimmed());
  table.title = table.rows.takeFirst();
  return table;
}

void appendRow(NumberTable& table, const Three& numbers, QString (*inWords)(int)) {
  QStringList& cells = table.cells.emplaceBack();
  for (const int number : numbers) cells.append(inWords(number));
}

void appendRows(NumberTable& table, const ByLevel& family, QString (*inWords)(int)) {
  for (const Three& numbers : family) appendRow(table, numbers, inWords);
}

void appendSum(NumberTable& table, std::initializer_list<const ByLevel*> families) {
  Three sum{};
  for (const ByLevel* family : families)
    for (const Three& numbers : *family)
      for (size_t i = 0; i < numbers.size(); ++i) sum[i] += numbers[i];
  appendRow(table, sum, groupedNumber);
}

}  // namespace

QString groupedNumber(int value) {
  return locale().toString(value);
}

QString BarChart::inWords() const {
  QStringList parts;
  for (int i = 0; i < columns.size(); ++i) parts.append(columns[i] + u' ' + numbers[i]);
  return parts.join(u'、');
}

std::vector<BarChart> ProgressReport::charts(Level level) const {
  const QStringList memory = {u"完全"_s, u"うろ"_s, u"全然"_s};
  const QStringList months = {u"今月"_s, u"先月"_s};
  const struct {
    QString title;
    const ByLevel& family;
    const QStringList& columns;
  } pages[chartsAPage] = {
      {u"記憶単熟%1"_s, m_counters.記憶単熟, memory},
      {u"記憶文%1"_s, m_counters.記憶文, memory},
      {u"時間%1"_s, m_counters.時間, months},
      {u"回数%1"_s, m_counters.回数, months},
      {u"回数単熟%1DB"_s, m_counters.回数単熟, months},
      {u"回数文%1DB"_s, m_counters.回数文, months},
  };
  std::vector<BarChart> charts;
  // The charts are numbered through the courses first.
  int number = static_cast<int>(level) + 1;
  for (const auto& page : pages) {
    BarChart chart;
    chart.name = u"MSChart"_s + QString::number(number);
    chart.title = page.title.arg(levelName(level));
    chart.columns = page.columns;
    chart.inHours = &page.family == &m_counters.時間;
    const Three& numbers = page.family[level];
    for (size_t i = 0; i < static_cast<size_t>(page.columns.size()); ++i) {
      chart.values.push_back(numbers[i] / (chart.inHours ? secondsPerHour : 1.0));
      chart.numbers.append(chart.inHours ? hours(numbers[i]) : groupedNumber(numbers[i]));
    }
    charts.push_back(chart);
    number += levelCount;
  }
  return charts;
}

std::vector<NumberTable> ProgressReport::tables() const {
  return filled({{
      u"|>完全|>うろ覚え|>全然;　記憶・DB別|単熟・中学DB|単熟・高校DB|単熟・専門DB|"
      "　 文・中学DB|　 文・高校DB|　 文・専門DB"_s,
      u"|>今月|>先月|>先月まで;時間・コース別|　中学コース|　高校コース |　専門コース "_s,
      u"|>今月|>先月|>先月まで;回数・コース別|　中学コース|　高校コース|　専門コース|"
      "　　合    計"_s,
      u"|>今月|>先月|>先月まで;　回数・DB別| 単熟・中学DB| 単熟・高校DB|単熟・専門DB|　 "
      "文・中学DB|　 文・高校DB|　 文・専門DB|　　合    計"_s,
  }});
}

std::vector<NumberTable> ProgressReport::printedTables() const {
  return filled({{
      u"|>完全|>うろ覚え|>全然;記憶・ＤＢ別|単熟･中学ＤＢ|単熟･高校ＤＢ|"
      "単熟･専門ＤＢ|文･中学ＤＢ|文･高校ＤＢ|文･専門ＤＢ"_s,
      u"|>今月|>先月|>先月まで;時間コース別|中学コース|高校コース|専門コース"_s,
      u"|>今月|>先月|>先月まで;回数コース別|中学コース|高校コース|専門コース|合　　計  "_s,
      u"|>今月|>先月|>先月まで;回数･ＤＢ別|単熟･中学ＤＢ|単熟･高校ＤＢ|単熟･専門ＤＢ|"
      "文･中学ＤＢ|文･高校ＤＢ|文･専門ＤＢ|合　　計  "_s,
  }});
}

std::vector<NumberTable> ProgressReport::filled(const std::array<QString, 4>& titles) const {
  std::vector<NumberTable> tables;
  tables.reserve(titles.size());
  for (const QString& title : titles) tables.push_back(titledTable(title));
  appendRows(tables[0], m_counters.記憶単熟, groupedNumber);
  appendRows(tables[0], m_counters.記憶文, groupedNumber);
  appendRows(tables[1], m_counters.時間, hours);
  appendRows(tables[2], m_counters.回数, groupedNumber);
  appendSum(tables[2], {&m_counters.回数});
  appendRows(tables[3], m_counters.回数単熟, groupedNumber);
  appendRows(tables[3], m_counters.回数文, groupedNumber);
  appendSum(tables[3], {&m_counters.回数単熟, &m_counters.回数文});
  return tables;
}

}  // namespace tavoli
