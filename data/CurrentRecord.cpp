// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/CurrentRecord.h"

#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// Cuts the next field off the text: all up to the mark, which is dropped with it.
QString takeField(QStringView& rest) {
  const qsizetype mark = rest.indexOf(fieldMark);
  QString field = rest.left(mark < 0 ? 0 : mark).toString();
  rest = rest.sliced(mark + 1);
  return field;
}

/// The elements of a list; each is ended by its mark, and what follows the last mark is none.
QList<QStringView> elementsOf(QStringView list) {
  QList<QStringView> elements = list.split(elementMark);
  elements.removeLast();
  return elements;
}

SubQuestion parseMeaning(QStringView element) {
  SubQuestion meaning;
  meaning.記 = codeOf<MemoryState>(element.isEmpty() ? QChar() : element[0]);
  meaning.小問回数 = numberOf(cut(element, 2, 2));
  meaning.日本語 = cutFrom(element, 4);
  return meaning;
}

SubQuestion parseAnswer(QStringView element) {
  SubQuestion answer;
  answer.先頭文字数 = numberOf(cut(element, 1, 2));
  answer.記 = codeOf<MemoryState>(element.size() < 3 ? QChar() : element[2]);
  const int length = numberOf(cut(element, 4, 3));
  answer.正 = cut(element, 7, length);
  answer.同 = cutFrom(element, 7 + length);
  answer.省略開始 = numberOf(cut(answer.同, 1, 2));
  answer.省略終了 = numberOf(cut(answer.同, 3, 2));
  return answer;
}

void packAnswer(const SubQuestion& answer, QString& list) {
  list += digits(answer.先頭文字数, 2);
  list += stored(answer.記);
  list += digits(static_cast<int>(answer.正.size()), 3);
  list += answer.正;
  list += answer.同;
  list += elementMark;
}

void packMeaning(const SubQuestion& meaning, QString& list) {
  list += stored(meaning.記);
  list += digits(meaning.小問回数, 2);
  list += meaning.日本語;
  list += elementMark;
}

}  // namespace

QString CurrentRecord::text(int k) const {
  if (!has(k)) return {};
  return sentence ? at(k).正 : at(k).日本語;
}

CurrentRecord ParseRecord(const QString& recordText, const QString& key, TableCode tableCode) {
  CurrentRecord record;
  record.sentence = tableCode == TableCode::sentences;
  QStringView rest = recordText;
  if (record.sentence) {
    record.問題文 = takeField(rest);
  } else {
    record.英語 = trimBlanks(key);
    record.発音 = takeField(rest);
    const QString synonyms = takeField(rest);
    for (const QStringView synonym : elementsOf(synonyms)) record.同.append(synonym.toString());
  }
  const QString list = takeField(rest);
  record.コメント = rest.toString();
  for (const QStringView element : elementsOf(list))
    record.小問.push_back(record.sentence ? parseAnswer(element) : parseMeaning(element));

  const auto textOf = [&](const SubQuestion& s) { return record.sentence ? s.正 : s.日本語; };
  while (record.小問数 < std::min<int>(maxSubQuestions, static_cast<int>(record.小問.size())) &&
         !textOf(record.小問[static_cast<size_t>(record.小問数)]).isEmpty())
    ++record.小問数;
  record.complete = static_cast<int>(record.小問.size()) <= maxSubQuestions &&
                    record.同.size() <= maxSubQuestions && packRecord(record) == recordText;
  return record;
}

QString packRecord(const CurrentRecord& record) {
  QString text;
  constexpr int usualLength = 256;
  text.reserve(usualLength);
  text += record.sentence ? record.問題文 : record.発音;
  text += fieldMark;
  if (!record.sentence) {
    for (const QString& synonym : record.同) {
      text += synonym;
      text += elementMark;
    }
    text += fieldMark;
  }
  for (const SubQuestion& s : record.小問) {
    if (record.sentence)
      packAnswer(s, text);
    else
      packMeaning(s, text);
  }
  text += fieldMark;
  text += record.コメント;
  return text;
}

QString BuildPronunciationText(const QString& 発音, const QString& shownBefore) {
  if (発音.size() <= 1) return shownBefore;
  QString s = 発音;
  for (qsizetype i = 1; i < s.size(); ++i) {
    if (s[i] == u'′' || s[i] == u'’') {
      const QChar stressed = s[i - 1];
      s.replace(i - 1, 2, u"{%1}"_s.arg(stressed));
      ++i;
    }
  }
  QString warning;
  if (s[0] == u'ァ') warning = u"  {アクセント注意}"_s;
  if (s[0] == u'発') warning = u"  {発音注意}"_s;
  return warning + u"［ "_s + (warning.isEmpty() ? s : s.sliced(1)) + u" ］"_s;
}

}  // namespace tavoli
