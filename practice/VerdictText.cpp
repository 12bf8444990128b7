// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/VerdictText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// The line that names the mark at the end of an answer.
QString missingMark(const QString& answer) {
  if (answer.endsWith(u'.')) return u"終止符\"．\"がありません。"_s;
  if (answer.endsWith(u'?')) return u"疑問符\"?\"がありません。"_s;
  return u"感嘆符\"!\"がありません。"_s;
}

}  // namespace

QString answerOf(const CurrentRecord& record, int k) {
  return record.sentence ? record.text(k) : record.英語;
}

bool addsNothing(const CurrentRecord& record, int k, const QString& entry) {
  return entry.isEmpty() || (record.sentence && entry.size() <= record.at(k).先頭文字数);
}

QString notRightText(const QString& typed) {
  return typed + u" は正解ではありません。"_s;
}

MarkedText wrongText(const Comparison& comparison) {
  Comparison shown = comparison;
  widenBlank(shown);
  MarkedText text = plainText(notRightText(shown.typedAnswer));
  // Where something is missing the stretch lies behind what was typed: there is nothing to colour.
  const qsizetype end = std::min<qsizetype>(shown.NGP2, shown.typedAnswer.size());
  if (shown.NGP >= 1 && end >= shown.NGP)
    text.spans.push_back({MarkedText::Span::Kind::Coloured, shown.NGP - 1, end - shown.NGP + 1});
  return text;
}

MarkedText slipText(const Comparison& comparison, const QString& answer) {
  if (comparison.ANScomp != Verdict::MarkMissing) return wrongText(comparison);
  return plainText(notRightText(comparison.typedAnswer) + u'\n' + missingMark(answer));
}

MarkedText toleratedText(const Comparison& comparison, const QString& answer) {
  return plainText(comparison.typedAnswer + u" も正解ですが、\n"_s + answer +
                   u" を覚えてください。"_s);
}

QString repeatsText(int repeats) {
  return u"あと %1 回練習して下さい。"_s.arg(repeats);
}

}  // namespace tavoli
