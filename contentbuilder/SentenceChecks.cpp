// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/SentenceChecks.h"

#include <QRegularExpression>

#include <algorithm>

#include "contentbuilder/TextChecks.h"
#include "data/Expansion.h"
#include "data/Text.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

namespace {

const QString blank = QStringLiteral("(   )");
const QString correction = QStringLiteral("次の英文に誤りがあれば訂正しなさい");
const QString name問 = QStringLiteral("「問」");

bool isWordCharacter(QChar c) {
  return c.isLetterOrNumber();
}

bool endsWithMark(const QString& text) {
  static const QRegularExpression mark(QStringLiteral("[.?!][\"')]*$"));
  return text.contains(mark);
}

/// A sentence begins with a capital and has three words or more.
bool isFullSentence(QString text) {
  text.replace(blank, QStringLiteral("x"));
  return !text.isEmpty() && text[0].isUpper() && text.count(u' ') >= 2;
}

QStringList questionProblems(const CurrentRecord& record) {
  // Whatever stands in brackets and is blank.
  static const QRegularExpression otherBlank(QStringLiteral("[(（][ 　]*[)）]"));
  QStringList problems = {lookalikeProblem(name問, record.問題文)};
  const QString text = parseMarks(record.問題文).text;
  const auto blanks = text.count(blank);
  if (QString(text).remove(blank).contains(otherBlank))
    problems.append(
        QStringLiteral("「問」の空所は「(   )」（半角のかっこと三つの空白）で書いてください。"));
  if (blanks > 0 && blanks != static_cast<qsizetype>(record.小問.size()))
    problems.append(QStringLiteral("「問」の空所が%1個で、「答」が%2個です。同じ数にしてください。")
                        .arg(blanks)
                        .arg(record.小問.size()));
  if (asksToCorrect(record.問題文)) {
    const auto at = record.問題文.indexOf(QStringLiteral("％％"));
    if (at < 0 || trimBlanks(record.問題文.sliced(at + 2)).isEmpty())
      problems.append(
          QStringLiteral("「%1」の後ろに「％％」と訂正する英文がありません。").arg(correction));
  }
  for (const QString& line : englishLines(record.問題文)) {
    if (isFullSentence(line) && !line.contains(QStringLiteral(" / ")) && !endsWithMark(line))
      problems.append(
          QStringLiteral("「問」の英文「%1」の終わりに . ? ! がありません。").arg(line));
  }
  return problems;
}

/// What a substitution does to the answer around it.
QString seamProblem(const QString& 正, const Substitution& s) {
  const QString head = cut(正, 1, s.start - 1);
  const QString span = cut(正, s.start, s.end - s.start + 1);
  const QString tail = cutFrom(正, s.end + 1);
  const QString whole = head + s.text + tail;
  const auto joins = [](const QString& left, const QString& right) {
    return !left.isEmpty() && !right.isEmpty() && isWordCharacter(left.back()) &&
           isWordCharacter(right.front());
  };
  const QString rest = s.text + tail;
  const bool blankLost = (span.startsWith(u' ') && joins(head, rest)) ||
                         (span.endsWith(u' ') && joins(head + s.text, tail));
  const bool blankLeft = whole != trimBlanks(whole) || whole.contains(QStringLiteral("  ")) ||
                         whole.contains(QStringLiteral(" .")) ||
                         whole.contains(QStringLiteral(" ,")) ||
                         whole.contains(QStringLiteral(" ?"));
  const bool blankMissing =
      span.isEmpty() && (joins(head, s.text) || joins(s.text, tail)) && !s.text.isEmpty();
  if (!blankLost && !blankLeft && !blankMissing) return {};
  return QStringLiteral("別の言い方が「%1」になり、空白が%2。印の中の空白を直してください。")
      .arg(whole, blankLeft ? QStringLiteral("余ります") : QStringLiteral("足りません"));
}

QStringList substitutionProblems(const SubQuestion& answer) {
  QStringList problems;
  std::vector<Substitution> seen;
  const bool marked = endsWithMark(answer.正);
  for (const Substitution& s : substitutionsOf(answer)) {
    problems.append(seamProblem(answer.正, s));
    const QString span = cut(answer.正, s.start, s.end - s.start + 1);
    const bool again = std::any_of(seen.begin(), seen.end(), [&](const Substitution& other) {
      return other.kind == s.kind && other.start == s.start && other.end == s.end &&
             other.text == s.text;
    });
    if (again || (s.kind == Substitution::Kind::Literal && s.text == span))
      problems.append(QStringLiteral("答の「%1」に同じ言い方「%2」がもう一度書かれています。")
                          .arg(span, s.text));
    problems.append(untypableAnswerProblem(QStringLiteral("答の別の言い方"), s.text));
    const QString whole = cut(answer.正, 1, s.start - 1) + s.text + cutFrom(answer.正, s.end + 1);
    if (marked && !endsWithMark(whole))
      problems.append(
          QStringLiteral("別の言い方が「%1」になり、終わりの . ? ! がなくなります。").arg(whole));
    seen.push_back(s);
  }
  return problems;
}

QStringList answerProblems(const SubQuestion& answer, bool inBlank) {
  const QString sentence = sentenceOf(answer);
  QStringList problems = {untypableAnswerProblem(QStringLiteral("答"), sentence)};
  if (answer.先頭文字数 > 0 && trimBlanks(cutFrom(answer.正, answer.先頭文字数 + 1)).isEmpty())
    problems.append(QStringLiteral("答「%1」が全部与えられています。「>」を前に移してください。")
                        .arg(answer.正));
  if (!inBlank && isFullSentence(sentence) && !endsWithMark(sentence))
    problems.append(QStringLiteral("答「%1」の終わりに . ? ! がありません。").arg(sentence));
  return problems + substitutionProblems(answer);
}

}  // namespace

QStringList englishLines(const QString& 問題文) {
  QStringList english;
  for (const QString& line : parseMarks(問題文).text.split(u'\n')) {
    const bool ascii = std::all_of(line.begin(), line.end(), [](QChar c) { return c <= u'~'; });
    if (ascii && !trimBlanks(line).isEmpty()) english.append(trimBlanks(line));
  }
  return english;
}

bool asksToCorrect(const QString& 問題文) {
  return 問題文.startsWith(correction);
}

QString sentenceOf(const SubQuestion& answer) {
  const bool label = cut(answer.正, answer.先頭文字数, 1) == QStringLiteral("=");
  return label ? cutFrom(answer.正, answer.先頭文字数 + 1) : answer.正;
}

QStringList sentenceProblems(const ContentRow& row, const CurrentRecord& record) {
  QStringList problems = questionProblems(record);
  const bool inBlank = parseMarks(record.問題文).text.contains(blank);
  for (const SubQuestion& answer : record.小問) problems += answerProblems(answer, inBlank);
  problems.append(lookalikeProblem(QStringLiteral("「コ」"), record.コメント));
  problems.append(lookalikeProblem(QStringLiteral("「読」"), row.読上));
  problems.removeAll(QString());
  problems.removeDuplicates();
  return problems;
}

}  // namespace tavoli
