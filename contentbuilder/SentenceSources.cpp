// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/SentenceSources.h"

#include <algorithm>
#include <array>
#include <span>

#include "contentbuilder/AnswerNotation.h"
#include "contentbuilder/TextChecks.h"
#include "data/Text.h"

namespace tavoli {

namespace {

constexpr int numberLength = 6;

constexpr QChar tag問 = u'問';
constexpr QChar tag答 = u'答';
constexpr QChar tag或 = u'或';
constexpr QChar tagコ = u'コ';
constexpr QChar tag読 = u'読';
constexpr std::array tags = {tag問, tag答, tag或, tagコ, tag読};

bool isTagLine(const QString& text) {
  return std::find(tags.begin(), tags.end(), text[0]) != tags.end() &&
         (text.size() == 1 || text[1] == u' ');
}

/// Reads one block.
class SentenceReader {
 public:
  SentenceReader(const SourceText& source, Problems& problems)
      : m_source(source), m_problems(problems) {}

  ContentRow read(std::span<const SourceLine> lines, const CourseFacts& course, KeyPlaces& places) {
    const SourceLine& first = lines.front();
    m_row.place = {m_source.name, first.number};
    m_row.lastLine = lines.back().number;
    if (isTagLine(trimBlanks(first.text))) {
      complain(first.number, QStringLiteral("文番の行がありません。問題の途中に空行があれば除き、"
                                            "なければ6文字の文番を置いてください。"));
    } else {
      readNumber(first, course, places);
      lines = lines.subspan(1);
    }
    for (const SourceLine& line : lines) readLine(line);
    finishAnswer();
    finish(first.number);
    m_row.record = packRecord(m_record);
    return m_row;
  }

 private:
  struct Answer {
    int line;
    AnswerLine text;
    bool readable;
  };

  void complain(int line, const QString& message) {
    if (!message.isEmpty()) m_problems.push_back({m_source.name, line, message});
  }

  void complain(int line, const QStringList& messages) {
    for (const QString& message : messages) complain(line, message);
  }

  void readNumber(const SourceLine& line, const CourseFacts& course, KeyPlaces& places) {
    m_row.key = trimBlanks(line.text);
    const bool plain = std::all_of(m_row.key.begin(), m_row.key.end(),
                                   [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (m_row.key.size() != numberLength || !plain) {
      complain(line.number,
               QStringLiteral("「%1」は文番になりません。半角の数字6文字で書いてください。")
                   .arg(m_row.key));
      return;
    }
    if (!course.holds(m_row.key)) {
      complain(line.number,
               QStringLiteral("文番%1は%2の範囲（%3から%4まで）にありません。番号を変えるか、"
                              "ほかのファイルに移してください。")
                   .arg(m_row.key, course.name, course.firstSentence, course.lastSentence));
    }
    if (places.contains(m_row.key)) {
      complain(line.number, QStringLiteral("文番%1は%2でも使われています。番号を変えてください。")
                                .arg(m_row.key, places.value(m_row.key).text()));
    } else {
      places.insert(m_row.key, m_row.place);
    }
  }

  void readLine(const SourceLine& line) {
    const QString whole = trimBlanks(line.text);
    if (!isTagLine(whole)) {
      complain(line.number, QStringLiteral("行の始めは「問」「答」「或」「コ」「読」のどれかと"
                                           "半角の空白にしてください。"));
      return;
    }
    const QChar tag = whole[0];
    const QString text = trimBlanks(cutFrom(whole, 2));
    if (tag == tag答)
      beginAnswer(line.number, text);
    else if (tag == tag或)
      addAlternatives(line.number, text);
    else
      takeText(line.number, tag, text);
  }

  /// 問, コ and 読 stand once in a block.
  void takeText(int line, QChar tag, const QString& text) {
    const QString name = QStringLiteral("「%1」").arg(tag);
    QString& target = tag == tag問   ? m_record.問題文
                      : tag == tagコ ? m_record.コメント
                                     : m_row.読上;
    if (m_seen.contains(tag))
      complain(line, QStringLiteral("%1が二つあります。一つにまとめてください。").arg(name));
    m_seen.append(tag);
    complain(line, separatorProblem(name, text));
    if (tag != tag読) complain(line, markProblem(name, text));
    target = text;
  }

  void beginAnswer(int line, const QString& text) {
    finishAnswer();
    QStringList messages;
    m_answer = Answer{line, parseAnswerLine(text, messages), messages.isEmpty()};
    complain(line, messages);
  }

  void addAlternatives(int line, const QString& text) {
    QStringList messages;
    const AnswerLine more = parseAnswerLine(text, messages);
    complain(line, messages);
    if (!m_answer) {
      complain(line, QStringLiteral("「或」の前に「答」がありません。"));
      return;
    }
    if (!messages.isEmpty()) {
      m_answer->readable = false;
      return;
    }
    if (!m_answer->readable) return;
    AnswerLine& answer = m_answer->text;
    const bool sameGiven = more.先頭文字数 == 0 || more.先頭文字数 == answer.先頭文字数;
    if (more.正 != answer.正 || !sameGiven) {
      complain(line, QStringLiteral("「或」の文「%1」が「答」の文「%2」と違います。同じ文に"
                                    "別の印をつけてください。")
                         .arg(more.正, answer.正));
      return;
    }
    answer.substitutions.insert(answer.substitutions.end(), more.substitutions.begin(),
                                more.substitutions.end());
  }

  void finishAnswer() {
    if (!m_answer) return;
    QStringList messages;
    m_record.小問.push_back(packAnswer(m_answer->text, messages));
    if (m_answer->readable) complain(m_answer->line, messages);
    m_answer.reset();
  }

  void finish(int firstLine) {
    m_record.sentence = true;
    if (m_record.問題文.isEmpty())
      complain(firstLine, QStringLiteral("「問」がないか、空です。問題文を書いてください。"));
    if (m_record.小問.empty())
      complain(firstLine, QStringLiteral("「答」がありません。一つ以上書いてください。"));
    if (m_record.小問.size() > maxSubQuestions)
      complain(firstLine, QStringLiteral("「答」は%1個までです。").arg(maxSubQuestions));
  }

  const SourceText& m_source;
  Problems& m_problems;
  ContentRow m_row;
  CurrentRecord m_record;
  QList<QChar> m_seen;
  std::optional<Answer> m_answer;
};

}  // namespace

std::vector<ContentRow> parseSentences(const SourceText& source, const CourseFacts& course,
                                       KeyPlaces& places, Problems& problems) {
  const auto isEmpty = [](const SourceLine& line) { return trimBlanks(line.text).isEmpty(); };
  std::vector<ContentRow> rows;
  auto begin = source.lines.begin();
  while (true) {
    begin = std::find_if_not(begin, source.lines.end(), isEmpty);
    if (begin == source.lines.end()) return rows;
    const auto end = std::find_if(begin, source.lines.end(), isEmpty);
    rows.push_back(SentenceReader(source, problems).read({begin, end}, course, places));
    begin = end;
  }
}

QString sentenceSource(const ContentRow& row, const CurrentRecord& record) {
  QStringList lines = {row.key};
  const auto add = [&](QChar tag, const QString& text) {
    lines.append(QStringLiteral("%1 %2").arg(tag, text));
  };
  add(tag問, record.問題文);
  for (const SubQuestion& s : record.小問) {
    QChar tag = tag答;
    for (const QString& notation : answerNotation(s)) {
      add(tag, notation);
      tag = tag或;
    }
  }
  if (!record.コメント.isEmpty()) add(tagコ, record.コメント);
  if (!row.読上.isEmpty()) add(tag読, row.読上);
  return lines.join(u'\n') + u'\n';
}

}  // namespace tavoli
