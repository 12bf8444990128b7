// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/NumberField.h"

#include <algorithm>
#include <cmath>

#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

struct Bounds {
  double least;
  double most;
};

bool isLevel(NumberField field) {
  return field == NumberField::LevelFrom || field == NumberField::LevelTo;
}

bool isMaxLoad(NumberField field) {
  return field == NumberField::MaxLoadWords || field == NumberField::MaxLoadSent;
}

/// Seconds per character, with two decimal places.
bool isRate(NumberField field) {
  return field == NumberField::TargetSentA || field == NumberField::TargetWordA;
}

Bounds boundsOf(NumberField field) {
  if (isLevel(field)) return {0, 99};
  if (isMaxLoad(field)) return {10, 24990};
  if (isRate(field)) return {0.1, 9.99};
  if (field == NumberField::ReviewCycle) return {0, 9};
  return {1, 99};
}

double valueOf(NumberField field, const PracticeConditions& c) {
  switch (field) {
    case NumberField::LevelFrom:
      return numberOf(c.levelFrom);
    case NumberField::LevelTo:
      return numberOf(c.levelTo);
    case NumberField::ReviewCycle:
      return c.reviewCycle;
    case NumberField::MaxLoadWords:
      return c.maxLoadWords;
    case NumberField::MaxLoadSent:
      return c.maxLoadSent;
    case NumberField::TargetSentA:
      return c.targetSentA;
    case NumberField::TargetSentB:
      return c.targetSentB;
    case NumberField::TargetWordA:
      return c.targetWordA;
    case NumberField::TargetWordB:
      return c.targetWordB;
  }
  return 0;
}

/// Puts a value in, brought to the field's bounds.
void setValue(NumberField field, double wanted, PracticeConditions& c) {
  const auto [least, most] = boundsOf(field);
  const double value = std::clamp(wanted, least, most);
  const int whole = static_cast<int>(value);
  switch (field) {
    case NumberField::LevelFrom:
      c.levelFrom = digits(whole, 2);
      break;
    case NumberField::LevelTo:
      c.levelTo = digits(whole, 2);
      break;
    case NumberField::ReviewCycle:
      c.reviewCycle = whole;
      break;
    case NumberField::MaxLoadWords:
      c.maxLoadWords = whole;
      break;
    case NumberField::MaxLoadSent:
      c.maxLoadSent = whole;
      break;
    case NumberField::TargetSentA:
      c.targetSentA = value;
      break;
    case NumberField::TargetSentB:
      c.targetSentB = whole;
      break;
    case NumberField::TargetWordA:
      c.targetWordA = value;
      break;
    case NumberField::TargetWordB:
      c.targetWordB = whole;
      break;
  }
}

/// Digits and points as a Japanese input method types them are as good as any.
QString narrowed(QString text) {
  for (QChar& c : text) {
    if (c >= u'０' && c <= u'９') c = QChar(c.unicode() - u'０' + u'0');
    if (c == u'．') c = u'.';
  }
  return trimBlanks(text);
}

std::optional<double> numberIn(NumberField field, const QString& text) {
  constexpr int decimals = 2;
  const qsizetype point = text.indexOf(u'.');
  if (point >= 0 && (!isRate(field) || text.size() - point - 1 > decimals)) return std::nullopt;
  const bool plain = std::all_of(text.begin(), text.end(),
                                 [](QChar c) { return c == u'.' || (c >= u'0' && c <= u'9'); });
  bool isNumber = false;
  const double value = text.toDouble(&isNumber);
  return plain && isNumber ? std::optional(value) : std::nullopt;
}

}  // namespace

QString numberText(NumberField field, const PracticeConditions& conditions) {
  constexpr int significant = 3;
  return QString::number(valueOf(field, conditions), 'g', isRate(field) ? significant : 6);
}

bool isNumberFor(NumberField field, const QString& text) {
  const std::optional<double> value = numberIn(field, narrowed(text));
  const auto [least, most] = boundsOf(field);
  return value && (isMaxLoad(field) || (*value >= least && *value <= most));
}

QString typeNumber(NumberField field, const QString& text, PracticeConditions& conditions) {
  const QString entry = narrowed(text);
  const std::optional<double> value = numberIn(field, entry);
  if (isNumberFor(field, entry)) {
    setValue(field, *value, conditions);
    return isMaxLoad(field) && *value > boundsOf(field).most ? numberText(field, conditions)
                                                             : entry;
  }
  if (isLevel(field) && !value) {
    constexpr int highest = 9;
    setValue(field, field == NumberField::LevelTo ? highest : 0, conditions);
    return numberText(field, conditions);
  }
  const bool begun = (entry.isEmpty() && (isMaxLoad(field) || isRate(field))) ||
                     (isRate(field) && (entry == u"0" || entry == u"." || entry == u"0."));
  return begun ? entry : numberText(field, conditions);
}

void stepNumber(NumberField field, int steps, PracticeConditions& conditions) {
  constexpr double rateStep = 0.05;
  constexpr int smallLoad = 100;
  const double before = valueOf(field, conditions);
  double step = 1;
  if (isRate(field)) step = rateStep;
  if (isMaxLoad(field)) step = before > smallLoad ? smallLoad : boundsOf(field).least;
  setValue(field, before + steps * step, conditions);
}

QString numberBounds(NumberField field) {
  const auto [least, most] = boundsOf(field);
  return (isRate(field) ? u"%1 から %2 までの数にしてください。"_s
                        : u"%1 から %2 までの整数にしてください。"_s)
      .arg(least)
      .arg(most);
}

}  // namespace tavoli
