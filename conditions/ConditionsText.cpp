// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/ConditionsText.h"

#include "data/Text.h"

using namespace Qt::StringLiterals;

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
  return u"%1 ～ %2"_s.arg(numberOf(from)).arg(numberOf(to));
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
  ConditionLines lines = {{u"コース"_s, c.course}, {u"練習対象"_s, methodName(c.selMethod)}};
  if (materialOf(c.selMethod) == Material::lesson)
    lines.append({u"レッスンファイル"_s, c.lessonFile});
  lines.append({u"開始英語"_s, c.startMode == StartMode::named
                                   ? startModeName(c.startMode) + u' ' + c.startEnglish
                                   : startModeName(c.startMode)});
  lines.append(
      {u"前回の最初と最後"_s, trimBlanks(c.firstEnglish) + u" ～ "_s + trimBlanks(c.lastEnglish)});
  lines.append({u"記憶状態"_s, memorySelectName(c.memorySelect)});
  lines.append({u"レベル"_s, c.levels});
  return lines;
}

}  // namespace

QString methodName(SelMethod selMethod) {
  return nameOf(selMethod, {u"レッスンファイル　順に"_s, u"レッスンファイル　ランダムに"_s,
                            u"単語熟語　順に"_s, u"単語熟語　ランダムに"_s, u"例文　順に"_s,
                            u"例文　ランダムに"_s});
}

QString startModeName(StartMode startMode) {
  return nameOf(startMode,
                {u"前回と同じ英語から"_s, u"最初から"_s, u"前回の最後に続けて"_s, u"指定する"_s});
}

QString memorySelectName(MemorySelect memorySelect) {
  return nameOf(memorySelect,
                {u"「全然」"_s, u"「全然」と「うろ覚え」"_s, u"「うろ覚え」"_s, u"「完全」"_s,
                 u"「完全」と「うろ覚え」"_s, u"「完全」と「うろ覚え」と「全然」"_s});
}

ConditionLines describeConditions(const CourseChoice& course, const PracticeConditions& c) {
  ConditionLines lines = linesOf({courseText(course.COURSE, course.specialTable), c.selMethod,
                                  c.startMode, c.memorySelect, c.startEnglish, c.firstEnglish,
                                  c.lastEnglish, levelText(c.levelFrom, c.levelTo), c.lessonFile});
  lines.append({u"最大読込数"_s, u"単語熟語 %1　例文 %2"_s.arg(c.maxLoadWords).arg(c.maxLoadSent)});
  lines.append({u"復習周期"_s, QString::number(c.reviewCycle)});
  return lines;
}

ConditionLines describePastRun(const PastRun& run) {
  return linesOf({courseText(run.COURSE, run.specialTable), run.selMethod, run.startMode,
                  run.memorySelect, run.startEnglish, run.firstEnglish, run.lastEnglish,
                  levelText(run.levelFrom, run.levelTo), run.lessonFile});
}

}  // namespace tavoli
