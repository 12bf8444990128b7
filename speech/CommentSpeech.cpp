// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/CommentSpeech.h"

#include <algorithm>
#include <array>

#include "data/Text.h"
#include "speech/EnglishPieces.h"
#include "speech/SayAs.h"

namespace tavoli {

namespace {

constexpr std::array wholeForms = {
    SayAs{u"A of B", u"\"A\" of B"},
    SayAs{u"A and B", u"\"A\" and B"},
};

constexpr std::array beginningForms = {
    SayAs{u"A or B", u"\"A\" or B"},
    SayAs{u"A differs ", u"\"A\" differs "},
    SayAs{u"A had not ", u"\"A\" had not "},
    SayAs{u"A = ", u"\"A\" = "},
    SayAs{u"= Long may the King live! = May the King live long!",
          u"= Long may the King liv! = May the King liv long!"},
};

QString withFixedForm(const QString& text) {
  for (const SayAs& form : wholeForms)
    if (text == form.from) return form.to.toString();
  for (const SayAs& form : beginningForms)
    if (text.startsWith(form.from)) return form.to.toString() + text.sliced(form.from.size());
  return text;
}

/// The capital A read as a letter wherever it stands alone behind the first word.
QString withLetterA(QString text) {
  for (qsizetype at = 0; (at = text.indexOf(u" A ", at + 1)) >= 0;)
    text.replace(at + 1, 1, QStringLiteral("'A'"));
  return text;
}

/// Respells the text of a comment, "～" and brackets still in it, for the voice.
QString spokenComment(const QString& text) {
  QString spoken = withLetterA(withFixedForm(text));
  spoken.replace(u'～', QStringLiteral("'..'"));
  if (spoken.size() > 3 && spoken.endsWith(u" A"))
    spoken.replace(spoken.size() - 1, 1, QStringLiteral("'A'"));
  const QString rest = spoken.sliced(1).removeIf([](QChar c) { return c == u'(' || c == u')'; });
  spoken = spoken.first(1) + rest;
  if (spoken.startsWith(u'=') || spoken.startsWith(u'＝')) spoken = spoken.sliced(1);
  spoken.remove(QStringLiteral("   "));
  spoken.replace(QStringLiteral("  "), QStringLiteral(".."));
  if (spoken.size() > 3 && spoken.endsWith(u"in.")) spoken.chop(1);
  return spoken;
}

/// Where the Japanese of a line begins, from 1.
qsizetype glossOf(const QString& piece) {
  const auto isJapanese = [](QChar c) { return c > u'z' && c != u'＝' && c != u'～'; };
  return std::find_if(piece.begin(), piece.end(), isJapanese) - piece.begin() + 1;
}

}  // namespace

SpeechList SpeakComment(const QString& コメント, SpeechList list) {
  for (const QString& line : piecesOf(withoutMarks(コメント)).mid(0, maxPieces)) {
    const QString piece = withPlainEquals(line);
    if (isEnglish(piece)) list = SpeakCommentPiece(piece, glossOf(piece), std::move(list));
  }
  return list;
}

SpeechList SpeakCommentPiece(const QString& text, qsizetype end, SpeechList list) {
  constexpr qsizetype shortest = 5;
  const bool glossPause = cut(text, end - 1, 1) == u"～";
  QString english = trimBlanks(cut(text, 1, glossPause ? end - 2 : end - 1));
  if (english.size() < shortest) return list;
  if (english.endsWith(u'(') || english.endsWith(u'（')) english.chop(1);
  english = trimBlanks(english);
  if (english.contains(u'/') || !english.contains(u' ')) return list;
  if (list.size() >= maxSpeechEntries) return list;

  QString shown = english;
  shown.replace(u'～', QStringLiteral(".."));
  if (shown.startsWith(u'=') || shown.startsWith(u'＝')) shown = shown.sliced(1);
  list.push_back({spokenComment(english), shown});
  return list;
}

}  // namespace tavoli
