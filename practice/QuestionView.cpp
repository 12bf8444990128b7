// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/QuestionView.h"

#include <QRegularExpression>

#include "itemtext/QuestionText.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

using Kind = MarkedText::Span::Kind;
using Span = MarkedText::Span;

/// The blanks "(   )" of a question, brackets and all.
std::vector<Span> blanksOf(const QString& text) {
  static const QRegularExpression blank(u"\\([ 　]+\\)"_s);
  std::vector<Span> blanks;
  for (auto found = blank.globalMatch(text); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    blanks.push_back({Kind::Asked, match.capturedStart(), match.capturedLength()});
  }
  return blanks;
}

/// Writes an answer between the brackets of a blank; all spans move with the text behind it.
void fill(MarkedText& question, const Span& blank, const QString& answer) {
  const qsizetype from = blank.offset + 1;
  const qsizetype room = blank.length - 2;
  const qsizetype grown = answer.size() - room;
  question.text.replace(from, room, answer);
  for (Span& span : question.spans) {
    if (span.offset >= from + room)
      span.offset += grown;
    else if (span.offset + span.length >= from + room)
      span.length += grown;
  }
  question.spans.push_back({Kind::Answered, from, answer.size()});
}

}  // namespace

QuestionView questionView(const MarkedText& question, const CurrentRecord& record, int POS1,
                          const AnsweredSubQuestions& answered) {
  QuestionView view{question, POS1, record.小問数};
  if (!record.sentence || isCorrection(record)) return view;
  const std::vector<Span> blanks = blanksOf(question.text);
  if (static_cast<int>(blanks.size()) != record.小問数) return view;
  // From the last one, so that the places of those before stay.
  for (int k = record.小問数; k >= 1; --k) {
    const Span& blank = blanks[static_cast<size_t>(k - 1)];
    if (k == POS1)
      view.question.spans.push_back(blank);
    else if (answered.test(static_cast<size_t>(k)))
      fill(view.question, blank, record.at(k).正);
  }
  return view;
}

QString subQuestionNumber(const QuestionView& view) {
  if (view.count <= 1 || view.POS1 > view.count) return {};
  return QString::number(view.POS1) + u'／' + QString::number(view.count);
}

QString answerHint(const QuestionView& view) {
  QStringList hints;
  const QString number = subQuestionNumber(view);
  if (!number.isEmpty()) hints.append(u"小問 "_s + number);
  if (view.question.text.contains(u'～')) hints.append(u"～ は Shift+0 か ~ のキー"_s);
  return hints.join(u'　');
}

}  // namespace tavoli
