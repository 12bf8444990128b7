// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/StartCheck.h"

#include <algorithm>

#include "data/Database.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int sentenceKeyWidth = 6;

const QString goOn = u"\n無視して続けますか。"_s;

bool namesSentence(const QString& key) {
  return !key.isEmpty() && key[0] >= u'0' && key[0] <= u'9';
}

}  // namespace

StartCheck checkLessonStart(const QString& named, const PracticeConditions& conditions,
                            const QStringList& lessonLines) {
  StartCheck check{named, {}, {}};
  const bool sentence = namesSentence(named);
  if (sentence && !conditions.isRandom())
    check.startKey = named.left(sentenceKeyWidth) + sentenceMark;
  const bool found = std::any_of(lessonLines.begin(), lessonLines.end(), [&](const QString& line) {
    return sentence ? line.left(sentenceKeyWidth) == named.left(sentenceKeyWidth)
                    : trimBlanks(line) == named;
  });
  if (!found)
    check.question = u"指定開始英語の "_s + check.startKey + u" は "_s + conditions.lessonFile +
                     u" の中にありません。"_s + goOn;
  return check;
}

StartCheck checkTableStart(const QString& named, const PracticeConditions& conditions,
                           const CourseChoice& course, const Files& files, const QString& path) {
  StartCheck check{named, {}, {}};
  if (!files.exists(path)) {
    check.trouble = path + u" : not found"_s;
    return check;
  }
  OpenedDatabase opened = openDatabase(path);
  if (!opened.database) {
    check.trouble = openTrouble(path, opened.errorNumber);
    return check;
  }
  const bool words = conditions.usesWords();
  const QString table = words ? prWhichTable(course).first() : tableBDIC;
  const auto rows = opened.database->OpenRecordset(table);
  if (!rows) {
    check.trouble = course.COURSE == Course::専門 && words
                        ? missingTable(table)
                        : openTrouble(path, openError::notADatabase);
    return check;
  }
  rows->Seek(SeekOp::Equal, words ? named : named.left(sentenceKeyWidth));
  if (rows->NoMatch())
    check.question = u"指定開始英語の "_s + named + u" はデータベース中にありません。"_s + goOn;
  return check;
}

QString openTrouble(const QString& path, int errorNumber) {
  return path + u" : OpenDatabase error    Err.Number="_s + QString::number(errorNumber);
}

QString missingTable(const QString& specialTable) {
  return u"専門単熟DB "_s + specialTable +
         u" が見つかりません。「中学／高校／専門の選択」で指定し直してください。"_s;
}

}  // namespace tavoli
