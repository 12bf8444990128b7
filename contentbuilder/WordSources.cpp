// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/WordSources.h"

#include <algorithm>

#include "contentbuilder/TextChecks.h"
#include "data/Schema.h"
#include "data/Text.h"

namespace tavoli {

const QString wordsHeader = QStringLiteral("英語\tレベル\t発音\t同\t日\tコメント\t読上");

namespace {

constexpr int columnCount = 7;
constexpr int maxKeyLength = 60;
constexpr int maxLevel = 10;

constexpr QChar quote = u'"';

const QString name発音 = QStringLiteral("「発音」");
const QString name同 = QStringLiteral("「同」");
const QString name日 = QStringLiteral("「日」");
const QString nameコメント = QStringLiteral("「コメント」");

class WordReader {
 public:
  WordReader(const SourceText& source, KeyPlaces& places, Problems& problems)
      : m_source(source), m_places(places), m_problems(problems) {}

  ContentRow read(const SourceLine& line) {
    m_line = line.number;
    QStringList columns = line.text.split(u'\t');
    for (QString& column : columns) column = withoutSpreadsheetQuotes(column);
    if (columns.size() == columnCount - 1) columns.append(QString());
    if (columns.size() != columnCount) {
      complain(QStringLiteral("列が%1個あります。タブで区切って%2個（「読上」を省くときは%3個）に"
                              "してください。")
                   .arg(columns.size())
                   .arg(columnCount)
                   .arg(columnCount - 1));
      return {};
    }
    ContentRow row;
    row.place = {m_source.name, m_line};
    row.lastLine = m_line;
    row.key = columns[0];
    checkKey(row.key);
    row.レベル = level(trimBlanks(columns[1]));

    CurrentRecord record;
    record.発音 = text(name発音, columns[2]);
    checkMarks(name発音, record.発音);
    record.同 = list(name同, columns[3]);
    const QStringList meanings = list(name日, columns[4]);
    if (meanings.isEmpty()) complain(QStringLiteral("「日」に意味がありません。"));
    for (const QString& meaning : meanings) {
      checkMarks(name日, meaning);
      SubQuestion s;
      s.日本語 = meaning;
      record.小問.push_back(s);
    }
    record.コメント = text(nameコメント, columns[5]);
    checkMarks(nameコメント, record.コメント);
    row.record = packRecord(record);
    row.読上 = text(QStringLiteral("「読上」"), columns[6]);
    return row;
  }

 private:
  void complain(const QString& message) {
    if (!message.isEmpty()) m_problems.push_back({m_source.name, m_line, message});
  }

  void checkMarks(const QString& name, const QString& text) { complain(markProblem(name, text)); }

  void checkKey(const QString& key) {
    complain(separatorProblem(QStringLiteral("「英語」"), key));
    if (key.isEmpty()) complain(QStringLiteral("「英語」が空です。"));
    if (trimBlanks(key) != key)
      complain(QStringLiteral("「英語」の始めか終わりに空白があります。空白を除いてください。"));
    if (key.size() > maxKeyLength)
      complain(QStringLiteral("「英語」は%1文字までです。").arg(maxKeyLength));
    if (isReservedKey(key))
      complain(QStringLiteral("zzzzで始まる「英語」は、システムが使うので置けません。"));
    if (m_places.contains(key)) {
      complain(QStringLiteral("「%1」は%2にもあります。一つにまとめてください。")
                   .arg(key, m_places.value(key).text()));
    } else {
      m_places.insert(key, {m_source.name, m_line});
    }
  }

  QString level(const QString& text) {
    const bool number =
        !text.isEmpty() && text.size() <= 2 &&
        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!number || numberOf(text) > maxLevel)
      complain(QStringLiteral("「レベル」は0から%1までの数で書いてください。").arg(maxLevel));
    return digits(numberOf(text), 2);
  }

  /// A spreadsheet puts a column that holds quotes into quotes, and doubles those inside.
  QString withoutSpreadsheetQuotes(const QString& column) {
    if (!column.startsWith(quote)) return column;
    QString inner =
        column.size() > 1 && column.endsWith(quote) ? column.sliced(1).chopped(1) : QString(quote);
    const QString doubled = QString(2, quote);
    if (QString(inner).remove(doubled).contains(quote))
      complain(
          QStringLiteral("「\"」で始まる列は、全体を「\"」で囲み、中の「\"」を「\"\"」と"
                         "書いてください（表計算ソフトの書き方）。"));
    return inner.replace(doubled, QString(quote));
  }

  QString text(const QString& name, const QString& column) {
    complain(separatorProblem(name, column));
    return trimBlanks(column);
  }

  QStringList list(const QString& name, const QString& column) {
    QStringList elements;
    if (trimBlanks(column).isEmpty()) return elements;
    for (const QString& part : column.split(fieldMark)) elements.append(text(name, part));
    if (elements.contains(QString()))
      complain(QStringLiteral("%1に空の要素があります。余分な「|」を除いてください。").arg(name));
    if (elements.size() > maxSubQuestions)
      complain(QStringLiteral("%1は%2個までです。").arg(name).arg(maxSubQuestions));
    return elements;
  }

  const SourceText& m_source;
  KeyPlaces& m_places;
  Problems& m_problems;
  int m_line = 0;
};

}  // namespace

std::vector<ContentRow> parseWords(const SourceText& source, KeyPlaces& places,
                                   Problems& problems) {
  std::vector<ContentRow> rows;
  if (source.lines.empty() || source.lines.front().number != 1 ||
      source.lines.front().text != wordsHeader) {
    problems.push_back(
        {source.name, 1,
         QStringLiteral("1行目には列の名前をタブで区切って書いてください: %1").arg(wordsHeader)});
    return rows;
  }
  WordReader reader(source, places, problems);
  for (size_t i = 1; i < source.lines.size(); ++i)
    if (!trimBlanks(source.lines[i].text).isEmpty()) rows.push_back(reader.read(source.lines[i]));
  return rows;
}

QString wordSource(const ContentRow& row, const CurrentRecord& record) {
  QStringList meanings;
  for (const SubQuestion& s : record.小問) meanings.append(s.日本語);
  const QString level = QString::number(numberOf(row.レベル));
  QStringList columns = {
      row.key,        level, record.発音, record.同.join(fieldMark), meanings.join(fieldMark),
      record.コメント};
  if (!row.読上.isEmpty()) columns.append(row.読上);
  for (QString& column : columns) {
    if (column.startsWith(quote)) column = quote + column.replace(quote, QString(2, quote)) + quote;
  }
  return columns.join(u'\t') + u'\n';
}

}  // namespace tavoli
