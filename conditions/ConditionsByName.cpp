// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/ConditionsByName.h"

#include <functional>

#include "conditions/ConditionsRules.h"
#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

struct Target {
  ConditionsRules& rules;
  PracticeConditions& conditions;
};

/// Takes a value over, or says what it should have been.
using Setter = std::function<QString(const Target& target, const QString& value)>;

/// One of a set of options; choosing the one that is marked already does nothing.
template <StoredCode Code>
Setter option(const QString& allowed, Code PracticeConditions::*marked,
              void (ConditionsRules::*choose)(Code)) {
  return [=](const Target& target, const QString& value) {
    if (value.size() != 1 || !allowed.contains(value))
      return u"%1 のどれか１文字にしてください。"_s.arg(allowed);
    const auto code = codeOf<Code>(value);
    if (code != target.conditions.*marked) (target.rules.*choose)(code);
    return QString();
  };
}

Setter number(NumberField field) {
  return [=](const Target& target, const QString& value) {
    if (!isNumberFor(field, value)) return numberBounds(field);
    target.rules.typeNumber(field, value);
    return QString();
  };
}

Setter repeats(int& (*field)(PracticeConditions&), int most) {
  return [=](const Target& target, const QString& value) {
    bool isNumber = false;
    const int n = value.toInt(&isNumber);
    if (!isNumber || n < 1 || n > most) return u"1 から %1 までの整数にしてください。"_s.arg(most);
    field(target.conditions) = n;
    return QString();
  };
}

QString setLessonFolder(const Target& target, const QString& value) {
  if (value.contains(fieldMark)) return u"\"|\" を含まないようにしてください。"_s;
  target.conditions.lessonFolder = value;
  return {};
}

QString setLessonFile(const Target& target, const QString& value) {
  target.rules.typeLessonName(value, target.conditions.lessonFolder);
  return {};
}

QString setStartEnglish(const Target& target, const QString& value) {
  if (target.conditions.startMode != StartMode::named)
    return u"startMode=3（指定する）と一緒に使ってください。"_s;
  target.rules.typeStart(value);
  return {};
}

Setter flag(void (*set)(PracticeConditions&, bool)) {
  return [=](const Target& target, const QString& value) {
    if (value != u"0" && value != u"1") return u"0 か 1 にしてください。"_s;
    set(target.conditions, value == u"1");
    return QString();
  };
}

/// In the screen's order: later choices rest on earlier ones.
const QList<std::pair<QString, Setter>>& setters() {
  using C = PracticeConditions;
  static const QList<std::pair<QString, Setter>> all = {
      {u"lessonFolder"_s, setLessonFolder},
      {u"lessonFile"_s, setLessonFile},
      {u"selMethod"_s, option(u"012345"_s, &C::selMethod, &ConditionsRules::chooseMethod)},
      {u"startMode"_s, option(u"0123"_s, &C::startMode, &ConditionsRules::chooseStartMode)},
      {u"startEnglish"_s, setStartEnglish},
      {u"memorySelect"_s, option(u"012345"_s, &C::memorySelect, &ConditionsRules::chooseMemory)},
      {u"levelFrom"_s, number(NumberField::LevelFrom)},
      {u"levelTo"_s, number(NumberField::LevelTo)},
      {u"maxLoadWords"_s, number(NumberField::MaxLoadWords)},
      {u"maxLoadSent"_s, number(NumberField::MaxLoadSent)},
      {u"reviewCycle"_s, number(NumberField::ReviewCycle)},
      {u"targetSentA"_s, number(NumberField::TargetSentA)},
      {u"targetSentB"_s, number(NumberField::TargetSentB)},
      {u"targetWordA"_s, number(NumberField::TargetWordA)},
      {u"targetWordB"_s, number(NumberField::TargetWordB)},
      {u"firstRepeatWord"_s, repeats([](C& c) -> int& { return c.firstRepeatWord; }, 5)},
      {u"firstRepeatSent"_s, repeats([](C& c) -> int& { return c.firstRepeatSent; }, 3)},
      {u"requiredRepeatWord"_s, repeats([](C& c) -> int& { return c.requiredRepeatWord; }, 5)},
      {u"requiredRepeatSent"_s, repeats([](C& c) -> int& { return c.requiredRepeatSent; }, 3)},
      {u"compareMode"_s, flag([](C& c, bool on) {
         c.compareMode = on ? CompareMode::caseMatters : CompareMode::caseIgnored;
       })},
      {u"compareFlag"_s, flag([](C& c, bool on) { c.compareFlag = on; })},
  };
  return all;
}

const QString nameCourse = u"COURSE"_s;
const QString nameSpecialTable = u"specialTable"_s;

}  // namespace

QString setCourseByName(CourseChoice& course, const NamedValues& values) {
  for (const auto& [name, value] : values) {
    if (name == nameSpecialTable) course.specialTable = value;
    if (name != nameCourse) continue;
    if (value != u"0" && value != u"1" && value != u"2")
      return u"COURSE: 0（中学）、1（高校）、2（専門）のどれかにしてください。"_s;
    course.COURSE = codeOf<Course>(value);
  }
  return {};
}

QString setByName(ConditionsRules& rules, PracticeConditions& conditions,
                  const NamedValues& values) {
  QStringList names = {nameCourse, nameSpecialTable};
  for (const auto& setter : setters()) names.append(setter.first);
  names.sort();
  for (const auto& value : values) {
    if (!names.contains(value.first))
      return u"%1 という条件はありません。使えるのは %2 です。"_s.arg(value.first,
                                                                      names.join(u", "_s));
  }
  for (const auto& [name, set] : setters()) {
    for (const auto& [wanted, value] : values) {
      if (wanted != name) continue;
      const QString complaint = set({rules, conditions}, value);
      if (!complaint.isEmpty()) return u"%1: %2"_s.arg(name, complaint);
    }
  }
  return {};
}

}  // namespace tavoli
