// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/PracticeConditions.h"

#include <algorithm>

#include "data/Schema.h"
#include "data/Text.h"

namespace tavoli {

namespace {

constexpr int startWidth = 50;

QChar orBlank(QChar c) {
  return c.isNull() ? QChar(u' ') : c;
}

template <StoredCode Code>
QChar orBlank(Code code) {
  return orBlank(stored(code));
}

/// How answers are compared, in one character.
enum class ComparisonCode : char16_t {
  caseIgnored = u'0',
  caseMatters,
  caseAndBlanksIgnored,
  blanksIgnored
};

QString oneDigit(int value) {
  return QString::number(std::clamp(value, 0, 9));
}

QString seconds(int value) {
  return digits(std::clamp(value, 0, 99), 2);
}

QString secondsPerCharacter(double value) {
  return QString::number(std::clamp(value, 0.0, 9.99), 'f', 2);
}

ComparisonCode comparisonCode(const PracticeConditions& c) {
  const bool caseIgnored = c.compareMode == CompareMode::caseIgnored;
  if (!c.compareFlag)
    return caseIgnored ? ComparisonCode::caseIgnored : ComparisonCode::caseMatters;
  return caseIgnored ? ComparisonCode::caseAndBlanksIgnored : ComparisonCode::blanksIgnored;
}

/// Takes fields off a fixed-position text one after the other.
class FieldReader {
 public:
  FieldReader(QStringView text, qsizetype position) : m_text(text), m_position(position) {}
  QString text(int width) {
    QString field = cut(m_text, m_position, width);
    m_position += width;
    while (field.endsWith(u' ')) field.chop(1);
    return field;
  }
  QChar character() {
    const QString field = cut(m_text, m_position, 1);
    ++m_position;
    return field.isEmpty() ? QChar(u' ') : field[0];
  }
  int number(int width) { return numberOf(text(width)); }
  double real(int width) { return realOf(text(width)); }
  QString rest() const { return cutFrom(m_text, m_position); }

 private:
  QStringView m_text;
  qsizetype m_position;
};

}  // namespace

QString encodeConditions(const PracticeConditions& c) {
  return fixedWidth(c.userId, 8) + orBlank(c.condMark) + orBlank(c.condSpare) +
         orBlank(c.selMethod) + fixedWidth(QString::number(c.maxLoadWords), 5) +
         fixedWidth(QString::number(c.maxLoadSent), 5) + fixedWidth(c.lessonDrive, 2) +
         orBlank(c.startMode) + fixedWidth(c.startEnglish, startWidth) +
         fixedWidth(c.firstEnglish, startWidth) + fixedWidth(c.lastEnglish, startWidth) +
         orBlank(c.memorySelect) + fixedWidth(c.levelFrom, 2) + fixedWidth(c.levelTo, 2) +
         fixedWidth(c.levelSpareFrom, 2) + fixedWidth(c.levelSpareTo, 2) +
         secondsPerCharacter(c.targetSentA) + seconds(c.targetSentB) +
         secondsPerCharacter(c.targetWordA) + seconds(c.targetWordB) + oneDigit(c.reviewCycle) +
         oneDigit(c.firstRepeatWord) + oneDigit(c.firstRepeatSent) +
         oneDigit(c.requiredRepeatWord) + oneDigit(c.requiredRepeatSent) +
         stored(comparisonCode(c)) + c.lessonFolder + fieldMark + c.lessonFile;
}

PracticeConditions decodeConditions(const QString& record, const QString& defaultLessonFolder) {
  PracticeConditions c;
  FieldReader fields(record, 10);
  c.condSpare = fields.character();
  c.selMethod = codeOf<SelMethod>(fields.character());
  c.maxLoadWords = fields.number(5);
  c.maxLoadSent = fields.number(5);
  c.lessonDrive = fields.text(2);
  c.startMode = codeOf<StartMode>(fields.character());
  c.startEnglish = fields.text(startWidth);
  c.firstEnglish = fields.text(startWidth);
  c.lastEnglish = fields.text(startWidth);
  c.memorySelect = codeOf<MemorySelect>(fields.character());
  c.levelFrom = fields.text(2);
  c.levelTo = fields.text(2);
  c.levelSpareFrom = fields.text(2);
  c.levelSpareTo = fields.text(2);
  c.targetSentA = fields.real(4);
  c.targetSentB = fields.number(2);
  c.targetWordA = fields.real(4);
  c.targetWordB = fields.number(2);
  c.reviewCycle = fields.number(1);
  c.firstRepeatWord = fields.number(1);
  c.firstRepeatSent = fields.number(1);
  c.requiredRepeatWord = fields.number(1);
  c.requiredRepeatSent = fields.number(1);
  const auto code = codeOf<ComparisonCode>(fields.character());
  c.compareFlag = code != ComparisonCode::caseIgnored && code != ComparisonCode::caseMatters;
  const bool caseIgnored =
      code == ComparisonCode::caseIgnored || code == ComparisonCode::caseAndBlanksIgnored;
  c.compareMode = caseIgnored ? CompareMode::caseIgnored : CompareMode::caseMatters;
  const QString tail = fields.rest();
  const qsizetype mark = tail.indexOf(fieldMark);
  c.lessonFolder = mark >= 1 ? tail.left(mark) : defaultLessonFolder;
  c.lessonFile = mark >= 1 ? tail.sliced(mark + 1) : QString();
  return c;
}

bool memoryAdmitted(MemorySelect memorySelect, MemoryState state) {
  const bool 全然 = state == MemoryState::全然;
  const bool うろ覚え = state == MemoryState::うろ覚え;
  const bool 完全 = state == MemoryState::完全;
  switch (memorySelect) {
    case MemorySelect::全然:
      return 全然;
    case MemorySelect::全然とうろ覚え:
      return 全然 || うろ覚え;
    case MemorySelect::うろ覚え:
      return うろ覚え;
    case MemorySelect::完全:
      return 完全;
    case MemorySelect::完全とうろ覚え:
      return 完全 || うろ覚え;
    case MemorySelect::すべて:
      return true;
  }
  return false;
}

QString startKeyOf(const PracticeConditions& c) {
  const PracticeConditions never;
  QString key = startKeyFirst;
  if (c.startMode == StartMode::whereBegun) key = trimBlanks(c.firstEnglish);
  if (c.startMode == StartMode::whereEnded) key = trimBlanks(c.lastEnglish);
  if (c.startMode == StartMode::named) key = trimBlanks(c.startEnglish);
  const bool nothingYet = key.isEmpty() || key == never.firstEnglish || key == never.lastEnglish;
  return nothingYet ? startKeyFirst : key;
}

}  // namespace tavoli
