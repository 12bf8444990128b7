#include "conditions/ConditionsText.h"

#include "data/Text.h"

namespace tavoli {

namespace {

template <StoredCode Code>
QString nameOf(Code code, const QStringList& names) {
  const int index = indexOf(code);
  return index >= 0 && index < names.size() ? names[index] : QString();
}

QString courseText(Course COURSE, const QString& specialTable) {
  return COURSE == Course::専門 ? courseName(COURSE) + u' ' + specialTable : courseName(COURSE);
}

QString levelText(const QString& from, const QString& to) {
  return QStringLiteral("%1 ～ %2").arg(numberOf(from)).arg(numberOf(to));
}

/// The fields that the present and a past run have in common.
struct Common {
  QString course;
  SelMethod selMethod;
  StartMode startMode;
  MemorySelect memorySelect;
  QString startEnglish, firstEnglish, lastEnglish, levels, lessonFile;
};

ConditionLines linesOf(const Common& c) {
  ConditionLines lines = {{QStringLiteral("コース"), c.course},
                          {QStringLiteral("練習対象"), methodName(c.selMethod)}};
  if (materialOf(c.selMethod) == Material::lesson)
    lines.append({QStringLiteral("レッスンファイル"), c.lessonFile});
  lines.append({QStringLiteral("開始英語"), c.startMode == StartMode::named
                                                ? startModeName(c.startMode) + u' ' + c.startEnglish
                                                : startModeName(c.startMode)});
  lines.append({QStringLiteral("前回の最初と最後"),
                trimBlanks(c.firstEnglish) + QStringLiteral(" ～ ") + trimBlanks(c.lastEnglish)});
  lines.append({QStringLiteral("記憶状態"), memorySelectName(c.memorySelect)});
  lines.append({QStringLiteral("レベル"), c.levels});
  return lines;
}

}  // namespace

QString methodName(SelMethod selMethod) {
  return nameOf(
      selMethod,
      {QStringLiteral("レッスンファイル　順に"), QStringLiteral("レッスンファイル　ランダムに"),
       QStringLiteral("単語熟語　順に"), QStringLiteral("単語熟語　ランダムに"),
       QStringLiteral("例文　順に"), QStringLiteral("例文　ランダムに")});
}

QString startModeName(StartMode startMode) {
  return nameOf(startMode, {QStringLiteral("前回と同じ英語から"), QStringLiteral("最初から"),
                            QStringLiteral("前回の最後に続けて"), QStringLiteral("指定する")});
}

QString memorySelectName(MemorySelect memorySelect) {
  return nameOf(memorySelect, {QStringLiteral("「全然」"), QStringLiteral("「全然」と「うろ覚え」"),
                               QStringLiteral("「うろ覚え」"), QStringLiteral("「完全」"),
                               QStringLiteral("「完全」と「うろ覚え」"),
                               QStringLiteral("「完全」と「うろ覚え」と「全然」")});
}

ConditionLines describeConditions(const CourseChoice& course, const PracticeConditions& c) {
  ConditionLines lines = linesOf({courseText(course.COURSE, course.specialTable), c.selMethod,
                                  c.startMode, c.memorySelect, c.startEnglish, c.firstEnglish,
                                  c.lastEnglish, levelText(c.levelFrom, c.levelTo), c.lessonFile});
  lines.append({QStringLiteral("最大読込数"),
                QStringLiteral("単語熟語 %1　例文 %2").arg(c.maxLoadWords).arg(c.maxLoadSent)});
  lines.append({QStringLiteral("復習周期"), QString::number(c.reviewCycle)});
  return lines;
}

ConditionLines describePastRun(const PastRun& run) {
  return linesOf({courseText(run.COURSE, run.specialTable), run.selMethod, run.startMode,
                  run.memorySelect, run.startEnglish, run.firstEnglish, run.lastEnglish,
                  levelText(run.levelFrom, run.levelTo), run.lessonFile});
}

}  // namespace tavoli
