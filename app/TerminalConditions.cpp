#include "app/TerminalConditions.h"

#include "conditions/ConditionsText.h"

namespace tavoli {

namespace {

QString textOf(const ConditionLines& lines) {
  QStringList texts;
  for (const auto& [caption, value] : lines) texts.append(caption + u'：' + value);
  return texts.join(u'\n');
}

}  // namespace

void TerminalConditions::print(const QString& area, const QString& text) {
  m_terminal.show(area, QString());
  m_terminal.show(area, text);
}

void TerminalConditions::showPresent(const CourseChoice& course,
                                     const PracticeConditions& conditions) {
  print(QStringLiteral("条件"), textOf(describeConditions(course, conditions)));
}

void TerminalConditions::showAll(const CourseChoice& course, const PracticeConditions& conditions) {
  showPresent(course, conditions);
  print(QStringLiteral("前回"), textOf(describePastRun(m_past)));
}

void TerminalConditions::showPastRun(const QString&, const PastRun& run) {
  m_past = run;
}

std::optional<QString> TerminalConditions::chooseSpecialTable(const QStringList& tables,
                                                              const QString& present) {
  const QString first = present.isEmpty() ? tables.value(0) : present;
  print(QStringLiteral("箱"),
        QStringLiteral("専門ＤＢを選択して下さい。（名前、空の行で %1、:no でキャンセル）\n%2")
            .arg(first, tables.join(u'\n')));
  while (const std::optional<QString> line = m_terminal.readLine()) {
    if (*line == u":no") break;
    if (line->isEmpty()) return first;
    if (tables.contains(*line)) return *line;
    print(QStringLiteral("箱"), QStringLiteral("%1 はありません。").arg(*line));
  }
  return std::nullopt;
}

}  // namespace tavoli
