// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/EnglishPieces.h"

#include "data/Text.h"

namespace tavoli {

QString withoutMarks(QString text) {
  return text.removeIf([](QChar c) { return c == u'[' || c == u']' || c == u'{' || c == u'}'; });
}

QStringList piecesOf(const QString& text) {
  QStringList pieces = text.split(lineMark);
  const qsizetype end = pieces.indexOf(QString());
  return end < 0 ? pieces : pieces.first(end);
}

QString withPlainEquals(QString piece) {
  if (piece.startsWith(u'＝')) piece[0] = u'=';
  return piece;
}

bool isEnglish(const QString& piece) {
  if (piece.isEmpty()) return false;
  const QChar first = piece.front();
  return (first >= u'=' && first <= u'z') || first == u'(' || first == u'"';
}

}  // namespace tavoli
