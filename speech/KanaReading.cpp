// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/KanaReading.h"

#include <QFileInfo>

#include "speech/NumberReading.h"
#include "speech/ReadableText.h"

namespace tavoli {

namespace {

using Kind = JapaneseWord::Kind;

bool isPauses(const QString& text) {
  return std::all_of(text.begin(), text.end(),
                     [](QChar c) { return c == u'、' || c == u'。' || c == u'？'; });
}

/// The digits of the number that begins at a word, and the place of the word behind it; empty where
/// none does.
QString numberAt(const std::vector<JapaneseWord>& words, std::size_t at, std::size_t& end) {
  QString written;
  for (end = at; end < words.size() && words[end].kind == Kind::number; ++end)
    written += words[end].written;
  return written.isEmpty() ? QString() : digitsOf(written);
}

/// What is counted though the dictionary does not take it for a counter.
bool countsAnyway(const QString& written) {
  static const QStringList counters = {
      QStringLiteral("文"), QStringLiteral("語"),   QStringLiteral("つ"),   QStringLiteral("人"),
      QStringLiteral("通"), QStringLiteral("足"),   QStringLiteral("切れ"), QStringLiteral("巻き"),
      QStringLiteral("箱"), QStringLiteral("区画"), QStringLiteral("月"),   QStringLiteral("日")};
  return counters.contains(written);
}

void append(std::vector<ReadingPiece>& pieces, const QString& kana) {
  const QString said = speakableKana(kana);
  // Between two pieces of English a pause is the English voice's.
  if (isPauses(said)) {
    if (!pieces.empty() && !said.isEmpty()) pieces.back().text += u',';
    return;
  }
  pieces.push_back({ReadingPiece::Kind::kana, said});
}

}  // namespace

KanaReading::Dictionaries KanaReading::dictionariesFor(const QString& programFolder) {
  QString own = programFolder + QStringLiteral("/../voices/readings.dic");
  if (!QFileInfo::exists(own))
    own = programFolder + QStringLiteral("/../share/tavoli/readings.dic");
  return {QStringLiteral(TAVOLI_JAPANESE_WORDS), own};
}

std::optional<KanaReading> KanaReading::open(const Dictionaries& dictionaries) {
  std::optional<JapaneseWords> words = JapaneseWords::open(dictionaries.words, dictionaries.own);
  if (!words) return std::nullopt;
  return KanaReading(*std::move(words));
}

QString KanaReading::soundOf(const QString& written) const {
  const bool kana = std::all_of(written.begin(), written.end(), [](QChar c) {
    return c.script() == QChar::Script_Hiragana || c.script() == QChar::Script_Katakana ||
           c == u'ー' || isPauses(c);
  });
  if (kana) return written;
  QString sound;
  if (written.size() > 1)
    for (const QChar c : written)
      for (const JapaneseWord& word : m_words.split(c)) sound += word.said;
  return sound;
}

QString KanaReading::kanaOf(const std::vector<JapaneseWord>& words, std::size_t& at) const {
  const JapaneseWord& word = words[at];
  std::size_t end = at;
  const QString digits = numberAt(words, at, end);
  if (digits.isEmpty()) return word.said.isEmpty() ? soundOf(word.written) : word.said;
  const bool ofMonth = at >= 1 && words[at - 1].written == QStringLiteral("月");
  at = end - 1;
  if (end == words.size()) return kanaOfNumber(digits);
  const JapaneseWord& next = words[end];
  if (next.kind != Kind::counter && !countsAnyway(next.written)) return kanaOfNumber(digits);
  at = end;
  const bool ofFraction = next.written == QStringLiteral("分") && end + 2 < words.size() &&
                          words[end + 1].written == QStringLiteral("の") &&
                          words[end + 2].kind == Kind::number;
  if (ofFraction) return kanaOfNumber(digits) + QStringLiteral("ブン");
  if (ofMonth && next.written == QStringLiteral("日")) return kanaOfDate(digits);
  return kanaOfCount(digits, next.written, next.said);
}

std::vector<ReadingPiece> KanaReading::read(const QString& text) const {
  const ReadableText readable = readableText(text);
  const std::vector<JapaneseWord> words = m_words.split(readable.japanese);
  std::vector<ReadingPiece> pieces;
  QString kana;
  qsizetype latin = 0;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (words[at].written != QString(latinPlace)) {
      kana += kanaOf(words, at);
      continue;
    }
    append(pieces, kana);
    kana.clear();
    pieces.push_back({ReadingPiece::Kind::latin, readable.latin.at(latin++)});
  }
  append(pieces, kana);
  if (!pieces.empty() && pieces.back().text.endsWith(u'、')) pieces.back().text.chop(1);
  return pieces;
}

QString KanaReading::readAsText(const QString& text) const {
  QString whole;
  for (const ReadingPiece& piece : read(text))
    whole += piece.kind == ReadingPiece::Kind::latin ? u'[' + piece.text + u']' : piece.text;
  return whole;
}

}  // namespace tavoli
