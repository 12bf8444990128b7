// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/QuestionSpeech.h"

#include <optional>

#include "data/Text.h"
#include "speech/EnglishPieces.h"
#include "speech/SpeechTable.h"

namespace tavoli {

namespace {

/// The answer is the sentence in the other voice, so the question need not be heard.
bool changesVoice(const CurrentRecord& record) {
  const QString& 正 = record.text(1);
  return 正.startsWith(u"受動態=") || 正.startsWith(u"能動態=");
}

/// The piece without a number of one character in brackets; a blank in them is one to fill.
QString withoutNumber(const QString& piece) {
  const bool numbered = piece.size() >= 3 && piece[0] == u'(' && piece[2] == u')' &&
                        piece[1] != u' ' && piece[1] != u'　';
  return numbered ? trimBlanks(piece.sliced(3)) : piece;
}

/// The pieces of a question that begin like English; none of a dialogue.
QStringList englishPieces(QString question) {
  question = withoutMarks(question);
  const QString twoLines(2, lineMark);
  while (question.contains(twoLines)) question.replace(twoLines, lineMark);
  QStringList english;
  for (const QString& line : piecesOf(question)) {
    const QString piece = withPlainEquals(withoutNumber(trimBlanks(line)));
    if (!isEnglish(piece)) continue;
    if (piece.size() >= 2 && piece[1] == u':') return {};
    if (english.size() < maxPieces) english.append(piece);
  }
  return english;
}

/// A piece that ends in one of `closing` without what its last bracket behind position 5 begins.
QString withoutNote(const QString& piece, QStringView opening, QStringView closing) {
  constexpr qsizetype soon = 5;
  if (piece.isEmpty() || !closing.contains(piece.back())) return piece;
  for (qsizetype at = piece.size() - 1; at >= soon; --at)
    if (opening.contains(piece[at])) return trimBlanks(piece.first(at));
  return piece;
}

bool endsSentence(QStringView piece) {
  if (piece.endsWith(u'"')) piece.chop(1);
  return piece.endsWith(u'.') || piece.endsWith(u'!') || piece.endsWith(u'?');
}

/// The whole sentences among the pieces of a question; none where a piece is too short to tell.
QStringList sentencesOf(const QStringList& pieces) {
  QStringList sentences;
  for (QString piece : pieces) {
    piece.replace(u'～', QStringLiteral(".. ")).remove(u'△');
    piece = withoutNote(piece, u"(（", u")）");
    piece = withoutNote(piece, u"＜", u"＞");
    if (endsSentence(piece))
      sentences.append(piece);
    else if (piece.size() < 2)
      return {};
  }
  return sentences;
}

struct Blanks {
  QString text;  ///< the sentences that have blanks, each blank as "()"
  int count = 0;
};

/// Nothing for a bracket that is not closed.
std::optional<Blanks> blanksOf(const QStringList& sentences) {
  Blanks blanks;
  QStringList withBlanks;
  for (QString sentence : sentences) {
    qsizetype open = -1;
    bool found = false;
    while ((open = sentence.indexOf(u'(', open + 1)) >= 0) {
      const qsizetype close = sentence.indexOf(u')', open);
      if (close < 0) return std::nullopt;
      sentence.remove(open + 1, close - open - 1);
      found = true;
      ++blanks.count;
    }
    if (found) withBlanks.append(sentence);
  }
  blanks.text = trimBlanks(withBlanks.join(u' '));
  return blanks;
}

/// The text with the answers in its blanks, which are as many.
QString filled(const QString& text, const CurrentRecord& record) {
  QString sentence;
  qsizetype from = 0;
  for (int k = 1; k <= record.小問数; ++k) {
    const SubQuestion& s = record.at(k);
    const bool startGiven = s.先頭文字数 >= 1 && cut(s.正, s.先頭文字数, 1) == u"=";
    const qsizetype blank = text.indexOf(u"()", from);
    sentence += text.sliced(from, blank - from);
    sentence += startGiven ? cutFrom(s.正, s.先頭文字数 + 1) : s.正;
    from = blank + 2;
  }
  return trimBlanks(sentence + text.sliced(from));
}

}  // namespace

bool isSilentSentence(const CurrentRecord& record) {
  const QString& 正 = record.text(1);
  if (正.isEmpty() || changesVoice(record)) return false;
  return 正.startsWith(u"(1) (") || 正.startsWith(u"(1)(") || 正.front() > u'z';
}

SpeechList speechQA(const CurrentRecord& record) {
  if (isSilentSentence(record)) return {};
  SpeechList list(changesVoice(record) ? 0 : 1);
  if (!record.問題文.contains(u"誤り")) {
    const std::optional<Blanks> blanks = blanksOf(sentencesOf(englishPieces(record.問題文)));
    if (blanks && blanks->count == record.小問数)
      return {sentenceEntry(filled(blanks->text, record))};
    if (blanks && !list.empty()) list.front() = sentenceEntry(blanks->text);
  }
  for (int k = 1; k <= record.小問数; ++k) list.push_back(answerEntry(record, k));
  return list;
}

Utterance answerEntry(const CurrentRecord& record, int k) {
  const SubQuestion& s = record.at(k);
  const qsizetype behind = s.先頭文字数 >= 1 ? s.正.indexOf(u'=') + 1 : 0;
  return sentenceEntry(trimBlanks(s.正.sliced(behind)));
}

}  // namespace tavoli
