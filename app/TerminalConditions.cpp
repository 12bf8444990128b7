// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TerminalConditions.h"

#include "conditions/ConditionsText.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString areaBox = u"箱"_s;

QString textOf(const ConditionLines& lines) {
  QStringList texts;
  for (const auto& [caption, value] : lines) texts.append(caption + u'：' + value);
  return texts.join(u'\n');
}

}  // namespace

void TerminalConditions::showPresent(const CourseChoice& course,
                                     const PracticeConditions& conditions) {
  m_terminal.print(u"条件"_s, textOf(describeConditions(course, conditions)));
}

void TerminalConditions::showAll(const CourseChoice& course, const PracticeConditions& conditions) {
  showPresent(course, conditions);
  m_terminal.print(u"前回"_s, textOf(describePastRun(m_past)));
}

void TerminalConditions::showPastRun(const QString&, const PastRun& run) {
  m_past = run;
}

std::optional<QString> TerminalConditions::chooseSpecialTable(const QStringList& tables,
                                                              const QString& present) {
  const QString first = present.isEmpty() ? tables.value(0) : present;
  m_terminal.show(areaBox,
                  u"専門ＤＢを選択して下さい。（名前、空の行で %1、:no でキャンセル）\n%2"_s.arg(
                      first, tables.join(u'\n')));
  std::optional<QString> chosen;
  while (const std::optional<QString> line = m_terminal.readLine()) {
    if (*line == u":no") break;
    if (line->isEmpty()) chosen = first;
    if (tables.contains(*line)) chosen = *line;
    if (chosen) break;
    m_terminal.print(areaBox, *line + u" はありません。"_s);
  }
  m_terminal.show(areaBox, QString());
  return chosen;
}

}  // namespace tavoli
