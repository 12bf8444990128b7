// SPDX-License-Identifier: GPL-3.0-or-later

#include "itemtext/QuestionText.h"

#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// Where the sentence to correct is looked for in the question, from 1, and where it begins when no
/// line break says so.
constexpr qsizetype correctionSearchFrom = 12;
constexpr qsizetype correctionDefault = 14;

QString withoutMarks(QString text) {
  for (const QChar mark : u"[]{}"_s) text.remove(mark);
  return text;
}

QString sentenceToCorrect(const QString& 問題文) {
  qsizetype at = 問題文.indexOf(u"％％"_s, correctionSearchFrom - 1);
  if (at < 0) at = 問題文.indexOf(lineMark, correctionSearchFrom - 1);
  if (at < 0) at = correctionDefault - 1;
  while (at < 問題文.size() && 問題文[at] == lineMark) ++at;
  return withoutMarks(問題文.sliced(std::min(at, 問題文.size())));
}

}  // namespace

bool isCorrection(const CurrentRecord& record) {
  return record.sentence && record.問題文.startsWith(u"次の英文に誤りがあれば訂正しなさい"_s);
}

QString answerStart(const CurrentRecord& record, int k) {
  if (!record.sentence || !record.has(k)) return {};
  if (isCorrection(record)) return sentenceToCorrect(record.問題文);
  return record.at(k).正.left(record.at(k).先頭文字数);
}

QStringList sentenceAnswerLines(const CurrentRecord& record) {
  QStringList lines;
  for (int k = 1; k <= record.小問数; ++k) {
    const SubQuestion& s = record.at(k);
    if (s.省略開始 < 1) {
      lines.append(s.正);
      continue;
    }
    const int length = s.省略終了 - s.省略開始 + 1;
    lines.append(cut(s.正, 1, s.省略開始 - 1) + u'(' + cut(s.正, s.省略開始, length) + u')' +
                 cutFrom(s.正, s.省略終了 + 1));
  }
  return lines;
}

QString answerLine(const CurrentRecord& record, int k) {
  return record.sentence ? sentenceAnswerLines(record).value(k - 1) : record.英語;
}

QStringList wordAnswerLines(const CurrentRecord& record) {
  QStringList lines;
  if (!record.同.isEmpty()) lines.append(u" (%1 )"_s.arg(record.同.join(u" ＝ "_s)));
  QString meanings;
  for (int k = 1; k <= record.小問数; ++k) meanings += record.at(k).日本語 + u"  "_s;
  lines.append(meanings);
  return lines;
}

QString fullAnswerText(const CurrentRecord& record) {
  const QStringList answers =
      record.sentence ? sentenceAnswerLines(record) : wordAnswerLines(record);
  QStringList lines;
  lines.append(record.sentence ? record.問題文
                               : record.英語 + BuildPronunciationText(record.発音, QString()));
  lines += answers;
  if (!record.コメント.isEmpty()) lines.append(record.コメント);
  return lines.join(lineMark);
}

QString sourceLabel(const CurrentRecord& record, const QString& key, TableCode itemTable,
                    Course COURSE) {
  if (record.sentence) {
    const std::optional<Course> course = courseOfSentence(key.isEmpty() ? QChar() : key[0]);
    return u"問題　"_s + courseName(course.value_or(Course::専門));
  }
  const auto& dictionaries = factsOf(COURSE).dictionaries;
  const int place = placeOf(itemTable);
  if (place < 1 || place > static_cast<int>(dictionaries.size())) return {};
  return u"問題　%1DB"_s.arg(courseName(dictionaryAt(COURSE, itemTable)));
}

}  // namespace tavoli
