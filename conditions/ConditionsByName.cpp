#include "conditions/ConditionsByName.h"

#include <functional>

#include "conditions/ConditionsRules.h"
#include "data/Text.h"

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
      return QStringLiteral("%1 のどれか１文字にしてください。").arg(allowed);
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
    if (!isNumber || n < 1 || n > most)
      return QStringLiteral("1 から %1 までの整数にしてください。").arg(most);
    field(target.conditions) = n;
    return QString();
  };
}

QString setLessonFolder(const Target& target, const QString& value) {
  if (value.contains(fieldMark)) return QStringLiteral("\"|\" を含まないようにしてください。");
  target.conditions.lessonFolder = value;
  return {};
}

QString setLessonFile(const Target& target, const QString& value) {
  target.rules.typeLessonName(value, target.conditions.lessonFolder);
  return {};
}

QString setStartEnglish(const Target& target, const QString& value) {
  if (target.conditions.startMode != StartMode::named)
    return QStringLiteral("startMode=3（指定する）と一緒に使ってください。");
  target.rules.typeStart(value);
  return {};
}

Setter flag(void (*set)(PracticeConditions&, bool)) {
  return [=](const Target& target, const QString& value) {
    if (value != u"0" && value != u"1") return QStringLiteral("0 か 1 にしてください。");
    set(target.conditions, value == u"1");
    return QString();
  };
}

/// In the screen's order: later choices rest on earlier ones.
const QList<std::pair<QString, Setter>>& setters() {
  using C = PracticeConditions;
  static const QList<std::pair<QString, Setter>> all = {
      {QStringLiteral("lessonFolder"), setLessonFolder},
      {QStringLiteral("lessonFile"), setLessonFile},
      {QStringLiteral("selMethod"),
       option(QStringLiteral("012345"), &C::selMethod, &ConditionsRules::chooseMethod)},
      {QStringLiteral("startMode"),
       option(QStringLiteral("0123"), &C::startMode, &ConditionsRules::chooseStartMode)},
      {QStringLiteral("startEnglish"), setStartEnglish},
      {QStringLiteral("memorySelect"),
       option(QStringLiteral("012345"), &C::memorySelect, &ConditionsRules::chooseMemory)},
      {QStringLiteral("levelFrom"), number(NumberField::LevelFrom)},
      {QStringLiteral("levelTo"), number(NumberField::LevelTo)},
      {QStringLiteral("maxLoadWords"), number(NumberField::MaxLoadWords)},
      {QStringLiteral("maxLoadSent"), number(NumberField::MaxLoadSent)},
      {QStringLiteral("reviewCycle"), number(NumberField::ReviewCycle)},
      {QStringLiteral("targetSentA"), number(NumberField::TargetSentA)},
      {QStringLiteral("targetSentB"), number(NumberField::TargetSentB)},
      {QStringLiteral("targetWordA"), number(NumberField::TargetWordA)},
      {QStringLiteral("targetWordB"), number(NumberField::TargetWordB)},
      {QStringLiteral("firstRepeatWord"),
       repeats([](C& c) -> int& { return c.firstRepeatWord; }, 5)},
      {QStringLiteral("firstRepeatSent"),
       repeats([](C& c) -> int& { return c.firstRepeatSent; }, 3)},
      {QStringLiteral("requiredRepeatWord"),
       repeats([](C& c) -> int& { return c.requiredRepeatWord; }, 5)},
      {QStringLiteral("requiredRepeatSent"),
       repeats([](C& c) -> int& { return c.requiredRepeatSent; }, 3)},
      {QStringLiteral("compareMode"), flag([](C& c, bool on) {
         c.compareMode = on ? CompareMode::caseMatters : CompareMode::caseIgnored;
       })},
      {QStringLiteral("compareFlag"), flag([](C& c, bool on) { c.compareFlag = on; })},
  };
  return all;
}

const QString nameCourse = QStringLiteral("COURSE");
const QString nameSpecialTable = QStringLiteral("specialTable");

}  // namespace

QString setCourseByName(CourseChoice& course, const NamedValues& values) {
  for (const auto& [name, value] : values) {
    if (name == nameSpecialTable) course.specialTable = value;
    if (name != nameCourse) continue;
    if (value != u"0" && value != u"1" && value != u"2")
      return QStringLiteral("COURSE: 0（中学）、1（高校）、2（専門）のどれかにしてください。");
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
      return QStringLiteral("%1 という条件はありません。使えるのは %2 です。")
          .arg(value.first, names.join(QStringLiteral(", ")));
  }
  for (const auto& [name, set] : setters()) {
    for (const auto& [wanted, value] : values) {
      if (wanted != name) continue;
      const QString complaint = set({rules, conditions}, value);
      if (!complaint.isEmpty()) return QStringLiteral("%1: %2").arg(name, complaint);
    }
  }
  return {};
}

}  // namespace tavoli
