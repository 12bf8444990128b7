#include "conditions/ConditionsByName.h"

#include <QHash>

#include <functional>

namespace tavoli {

namespace {

struct Target {
  PracticeConditions& conditions;
  CourseChoice& course;
};

/// Takes a value over, or says what it should have been.
using Setter = std::function<QString(Target, const QString& value)>;

Setter code(QChar PracticeConditions::*field, const QString& allowed) {
  return [=](Target target, const QString& value) {
    if (value.size() != 1 || !allowed.contains(value))
      return QStringLiteral("%1 のどれか１文字にしてください。").arg(allowed);
    target.conditions.*field = value[0];
    return QString();
  };
}

Setter number(int PracticeConditions::*field, int from, int to) {
  return [=](Target target, const QString& value) {
    bool isNumber = false;
    const int n = value.toInt(&isNumber);
    if (!isNumber || n < from || n > to)
      return QStringLiteral("%1 から %2 までの整数にしてください。").arg(from).arg(to);
    target.conditions.*field = n;
    return QString();
  };
}

Setter secondsPerCharacter(double PracticeConditions::*field) {
  return [=](Target target, const QString& value) {
    bool isNumber = false;
    const double n = value.toDouble(&isNumber);
    if (!isNumber || n < 0.1 || n >= 10.0)
      return QStringLiteral("0.1 から 9.99 までの数にしてください。");
    target.conditions.*field = n;
    return QString();
  };
}

Setter level(QString PracticeConditions::*field) {
  return [=](Target target, const QString& value) {
    bool isNumber = false;
    const int n = value.toInt(&isNumber);
    if (!isNumber || n < 0 || n > 99) return QStringLiteral("0 から 99 までの整数にしてください。");
    target.conditions.*field = QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
    return QString();
  };
}

Setter text(QString PracticeConditions::*field, int width) {
  return [=](Target target, const QString& value) {
    if (value.size() > width || value.contains(u'|'))
      return QStringLiteral("%1文字までで、\"|\" を含まないようにしてください。").arg(width);
    target.conditions.*field = value;
    return QString();
  };
}

const QHash<QString, Setter>& setters() {
  using C = PracticeConditions;
  constexpr int startWidth = 50;
  constexpr int pathWidth = 1000;
  static const QHash<QString, Setter> all = {
      {QStringLiteral("selMethod"), code(&C::selMethod, QStringLiteral("012345"))},
      {QStringLiteral("startMode"), code(&C::startMode, QStringLiteral("0123"))},
      {QStringLiteral("memorySelect"), code(&C::memorySelect, QStringLiteral("012345"))},
      {QStringLiteral("compareMode"), code(&C::compareMode, QStringLiteral("01"))},
      {QStringLiteral("maxLoadWords"), number(&C::maxLoadWords, 10, 24990)},
      {QStringLiteral("maxLoadSent"), number(&C::maxLoadSent, 10, 24990)},
      {QStringLiteral("targetSentB"), number(&C::targetSentB, 1, 99)},
      {QStringLiteral("targetWordB"), number(&C::targetWordB, 1, 99)},
      {QStringLiteral("reviewCycle"), number(&C::reviewCycle, 0, 9)},
      {QStringLiteral("firstRepeatWord"), number(&C::firstRepeatWord, 1, 5)},
      {QStringLiteral("firstRepeatSent"), number(&C::firstRepeatSent, 1, 3)},
      {QStringLiteral("requiredRepeatWord"), number(&C::requiredRepeatWord, 1, 5)},
      {QStringLiteral("requiredRepeatSent"), number(&C::requiredRepeatSent, 1, 3)},
      {QStringLiteral("targetSentA"), secondsPerCharacter(&C::targetSentA)},
      {QStringLiteral("targetWordA"), secondsPerCharacter(&C::targetWordA)},
      {QStringLiteral("levelFrom"), level(&C::levelFrom)},
      {QStringLiteral("levelTo"), level(&C::levelTo)},
      {QStringLiteral("startEnglish"), text(&C::startEnglish, startWidth)},
      {QStringLiteral("lessonFolder"), text(&C::lessonFolder, pathWidth)},
      {QStringLiteral("lessonFile"), text(&C::lessonFile, pathWidth)},
      {QStringLiteral("compareFlag"),
       [](Target target, const QString& value) {
         if (value != u"0" && value != u"1") return QStringLiteral("0 か 1 にしてください。");
         target.conditions.compareFlag = value == u"1";
         return QString();
       }},
      {QStringLiteral("COURSE"),
       [](Target target, const QString& value) {
         if (value != u"0" && value != u"1" && value != u"2")
           return QStringLiteral("0（中学）、1（高校）、2（専門）のどれかにしてください。");
         target.course.COURSE = value[0];
         return QString();
       }},
      {QStringLiteral("specialTable"),
       [](Target target, const QString& value) {
         constexpr int tableWidth = 25;
         if (value.size() > tableWidth) return QStringLiteral("25文字までにしてください。");
         target.course.specialTable = value;
         return QString();
       }},
  };
  return all;
}

}  // namespace

QString setByName(PracticeConditions& conditions, CourseChoice& course, const QString& name,
                  const QString& value) {
  const auto setter = setters().constFind(name);
  if (setter == setters().constEnd()) {
    QStringList names = setters().keys();
    names.sort();
    return QStringLiteral("%1 という条件はありません。使えるのは %2 です。")
        .arg(name, names.join(QStringLiteral(", ")));
  }
  const QString complaint = (*setter)({conditions, course}, value);
  return complaint.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(name, complaint);
}

}  // namespace tavoli
