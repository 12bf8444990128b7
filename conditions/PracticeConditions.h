#pragma once

#include <QString>
#include <QStringList>

#include "data/Course.h"

namespace tavoli {

/// The dictionaries of a course in look-up order, two or three of them.
QStringList prWhichTable(const CourseChoice& course);

/// The path of a file in a folder, which may be the root.
inline QString pathIn(const QString& folder, const QString& file) {
  return folder.endsWith(u'/') ? folder + file : folder + u'/' + file;
}

/// What the learner chose for a run. Texts are kept without the blanks that fill their stored
/// fields.
struct PracticeConditions {
  QString userId;  ///< at most 8 characters
  QChar condMark = u'2';
  QChar condSpare = u'0';
  /// 0, 1 lesson file; 2, 3 words; 4, 5 sentences; odd ones at random.
  QChar selMethod = u'2';
  int maxLoadWords = 200;  ///< rows read, up to 24990
  int maxLoadSent = 100;
  QString lessonDrive = QStringLiteral("c:");
  /// 0 where last time began, 1 the first item, 2 where last time ended, 3 at startEnglish.
  QChar startMode = u'0';
  QString startEnglish;  ///< these three at most 50 characters
  QString firstEnglish = QStringLiteral("- start -");
  QString lastEnglish = QStringLiteral("-  end  -");
  /// Which memory states are asked: 0 全然, 1 全然 and うろ覚え, 2 うろ覚え, 3 完全,
  /// 4 完全 and うろ覚え, 5 all.
  QChar memorySelect = u'1';
  QString levelFrom = QStringLiteral("00");  ///< two digits, like the next three
  QString levelTo = QStringLiteral("10");
  QString levelSpareFrom = QStringLiteral("00");
  QString levelSpareTo = QStringLiteral("99");
  /// Target time of an answer in seconds: A times its length plus B.
  double targetSentA = 0.5;  ///< 0.1 to 9.99
  int targetSentB = 20;      ///< 1 to 99
  double targetWordA = 0.5;
  int targetWordB = 10;
  int reviewCycle = 3;  ///< 0 to 9, 0 for no review
  int firstRepeatWord = 2;
  int firstRepeatSent = 1;
  int requiredRepeatWord = 2;
  int requiredRepeatSent = 1;
  QChar compareMode = u'0';  ///< 0 upper and lower case are the same, 1 they differ
  bool compareFlag = true;   ///< blanks and hyphens are ignored
  QString lessonFolder;
  QString lessonFile = QStringLiteral(" ｼﾃｲﾅｼ ");

  bool usesLesson() const { return selMethod == u'0' || selMethod == u'1'; }
  bool usesWords() const { return selMethod == u'2' || selMethod == u'3'; }
  bool isRandom() const { return selMethod == u'1' || selMethod == u'3' || selMethod == u'5'; }
  QString lessonPath() const { return pathIn(lessonFolder, lessonFile); }
};

/// The record as the tables hold it, by fixed positions. Values that have no room in their places
/// are brought to the nearest that has, so that the places never shift.
QString encodeConditions(const PracticeConditions& conditions);

/// Takes a stored record apart from position 10 on. What the text is too short for becomes empty or
/// 0; a tail without "|" gives `defaultLessonFolder` and no file.
PracticeConditions decodeConditions(const QString& record, const QString& defaultLessonFolder);

/// Whether a 小問 or an item with memory code `code` is asked under `memorySelect`.
bool memoryAdmitted(QChar memorySelect, QChar code);

/// The key at which a run starts; "000000" for the first item.
QString startKeyOf(const PracticeConditions& conditions);
inline const QString startKeyFirst = QStringLiteral("000000");

}  // namespace tavoli
