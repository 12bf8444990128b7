// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/SentenceWarnings.h"

#include <QRegularExpression>

#include "contentbuilder/Comments.h"
#include "contentbuilder/SentenceChecks.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

namespace {

const QString kindInQuestion = QStringLiteral("答が問題に");
/// Shorter words stand in any sentence.
constexpr int shortestTelling = 4;

/// Whether the question gives the answer away.
bool holdsAnswer(const QString& 問題文, const QString& answer) {
  static const QRegularExpression finalMark(QStringLiteral("[.?!]$"));
  const QString sought = QString(answer).remove(finalMark);
  if (sought.size() < shortestTelling) return false;
  const QRegularExpression whole(
      QStringLiteral("(?<![A-Za-z])%1(?![A-Za-z])").arg(QRegularExpression::escape(sought)),
      QRegularExpression::CaseInsensitiveOption);
  return englishLines(問題文).join(u'\n').contains(whole);
}

}  // namespace

Warnings sentenceWarnings(const ContentRow& row, const CurrentRecord& record) {
  Warnings warnings;
  for (const SubQuestion& answer : record.小問) {
    if (!asksToCorrect(record.問題文) && holdsAnswer(record.問題文, sentenceOf(answer)))
      warnings.push_back({{row.place.file, row.place.line,
                           QStringLiteral("「問」の中に答「%1」があります。").arg(answer.正)},
                          kindInQuestion,
                          row.key});
  }
  for (const QString& fragment : spokenFragments(record.コメント))
    warnings.push_back(fragmentWarning(row, row.key, fragment));
  return warnings;
}

}  // namespace tavoli
