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

QString oneDigit(int value) {
  return QString::number(std::clamp(value, 0, 9));
}

QString seconds(int value) {
  return digits(std::clamp(value, 0, 99), 2);
}

QString secondsPerCharacter(double value) {
  return QString::number(std::clamp(value, 0.0, 9.99), 'f', 2);
}

QChar comparisonCode(const PracticeConditions& c) {
  if (!c.compareFlag) return c.compareMode;
  return c.compareMode == u'0' ? u'2' : u'3';
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

QStringList prWhichTable(const CourseChoice& course) {
  if (course.COURSE == course中学) return {tableJTDIC, tableSTDIC};
  if (course.COURSE == course高校) return {tableSTDIC, tableJTDIC};
  return {course.specialTable, tableSTDIC, tableJTDIC};
}

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
         oneDigit(c.requiredRepeatWord) + oneDigit(c.requiredRepeatSent) + comparisonCode(c) +
         c.lessonFolder + fieldMark + c.lessonFile;
}

PracticeConditions decodeConditions(const QString& record, const QString& defaultLessonFolder) {
  PracticeConditions c;
  FieldReader fields(record, 10);
  c.condSpare = fields.character();
  c.selMethod = fields.character();
  c.maxLoadWords = fields.number(5);
  c.maxLoadSent = fields.number(5);
  c.lessonDrive = fields.text(2);
  c.startMode = fields.character();
  c.startEnglish = fields.text(startWidth);
  c.firstEnglish = fields.text(startWidth);
  c.lastEnglish = fields.text(startWidth);
  c.memorySelect = fields.character();
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
  const QChar code = fields.character();
  c.compareFlag = code != u'0' && code != u'1';
  c.compareMode = code == u'0' || code == u'2' ? u'0' : u'1';
  const QString tail = fields.rest();
  const qsizetype mark = tail.indexOf(fieldMark);
  c.lessonFolder = mark >= 1 ? tail.left(mark) : defaultLessonFolder;
  c.lessonFile = mark >= 1 ? tail.sliced(mark + 1) : QString();
  return c;
}

bool memoryAdmitted(QChar memorySelect, QChar code) {
  switch (memorySelect.unicode()) {
    case u'0':
      return code == u'0';
    case u'1':
      return code == u'0' || code == u'1';
    case u'2':
      return code == u'1';
    case u'3':
      return code == u'2';
    case u'4':
      return code == u'1' || code == u'2';
    default:
      return memorySelect == u'5';
  }
}

QString startKeyOf(const PracticeConditions& c) {
  const PracticeConditions never;
  QString key = startKeyFirst;
  if (c.startMode == u'0') key = trimBlanks(c.firstEnglish);
  if (c.startMode == u'2') key = trimBlanks(c.lastEnglish);
  if (c.startMode == u'3') key = trimBlanks(c.startEnglish);
  const bool nothingYet = key.isEmpty() || key == never.firstEnglish || key == never.lastEnglish;
  return nothingYet ? startKeyFirst : key;
}

}  // namespace tavoli
