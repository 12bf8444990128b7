// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "data/Courses.h"

namespace tavoli {

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
  SelMethod selMethod = SelMethod::wordsInOrder;
  int maxLoadWords = 200;  ///< rows read, up to 24990
  int maxLoadSent = 100;
  QString lessonDrive = QStringLiteral("c:");
  StartMode startMode = StartMode::whereBegun;
  QString startEnglish;  ///< these three at most 50 characters
  QString firstEnglish = QStringLiteral("- start -");
  QString lastEnglish = QStringLiteral("-  end  -");
  MemorySelect memorySelect = MemorySelect::全然とうろ覚え;
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
  CompareMode compareMode = CompareMode::caseIgnored;
  bool compareFlag = true;  ///< blanks and hyphens are ignored
  QString lessonFolder;
  QString lessonFile = QStringLiteral(" ｼﾃｲﾅｼ ");

  bool usesLesson() const { return materialOf(selMethod) == Material::lesson; }
  bool usesWords() const { return materialOf(selMethod) == Material::words; }
  bool isRandom() const { return tavoli::isRandom(selMethod); }
  QString lessonPath() const { return pathIn(lessonFolder, lessonFile); }
};

/// The record as the tables hold it, by fixed positions. Values that have no room in their places
/// are brought to the nearest that has, so that the places never shift.
QString encodeConditions(const PracticeConditions& conditions);

/// Takes a stored record apart from position 10 on. What the text is too short for becomes empty or
/// 0; a tail without "|" gives `defaultLessonFolder` and no file.
PracticeConditions decodeConditions(const QString& record, const QString& defaultLessonFolder);

/// Whether a 小問 or an item with this memory state is asked under `memorySelect`.
bool memoryAdmitted(MemorySelect memorySelect, MemoryState state);

/// The key at which a run starts; "000000" for the first item.
QString startKeyOf(const PracticeConditions& conditions);
inline const QString startKeyFirst = QStringLiteral("000000");

}  // namespace tavoli
