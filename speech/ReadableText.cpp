// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/ReadableText.h"

#include <QRegularExpression>

namespace tavoli {

namespace {

constexpr QChar shortPause = u'、';
constexpr QChar longPause = u'。';
constexpr QChar askingPause = u'？';
constexpr QChar longMark = u'ー';

bool isJapanese(QChar c) {
  return c.script() == QChar::Script_Han || c.script() == QChar::Script_Hiragana ||
         c.script() == QChar::Script_Katakana || c == longMark || c == u'々' || c == u'〆';
}

bool isPause(QChar c) {
  return c == shortPause || c == longPause || c == askingPause;
}

/// The pause that a sign stands for; no character for none.
QChar pauseOf(QChar c) {
  static const QString longSigns = QStringLiteral("。.!！…‥");
  static const QString shortSigns = QStringLiteral(
      "、,，・～〜~―—–‐-－→⇒=＝/／:：;；()（）[]［］{}｛｝「」『』【】〔〕<>＜＞〈〉《》|");
  if (c == u'?' || c == u'？') return askingPause;
  if (longSigns.contains(c)) return longPause;
  if (shortSigns.contains(c)) return shortPause;
  return {};
}

/// A run of words in Latin letters, with the numbers and marks between them.
const QRegularExpression& latinRun() {
  // It never goes back, so that a text of any length is gone through once.
  static const QRegularExpression run(
      QStringLiteral("(?:[$£]?\\d[\\d.,:]*+(?:st|nd|rd|th|s)? )?[A-Za-zÀ-ɏ][A-Za-zÀ-ɏ0-9'’.&-]*+"
                     "(?:[ ,.!?;:'\"/&-]++[$£]?[A-Za-zÀ-ɏ0-9][A-Za-zÀ-ɏ0-9'’.&%-]*+)*+[.!?]?"));
  return run;
}

/// A run as the English voice gets it.
QString latinText(QString run) {
  static const QRegularExpression between(QStringLiteral(" *(?:/| -+ |\") *"));
  static const QRegularExpression end(QStringLiteral("[ ,;:'\"/&-]+$"));
  return run.replace(between, QStringLiteral(", ")).remove(end);
}

/// Digits as one number; times of day in words.
QString withPlainNumbers(QString text) {
  static const QRegularExpression thousands(QStringLiteral("(?<=\\d),(?=\\d{3}(?!\\d))"));
  static const QRegularExpression time(QStringLiteral("(?<!\\d)(\\d{1,2}):(\\d\\d)(?!\\d)"));
  static const QRegularExpression point(QStringLiteral("(?<=\\d)\\.(?=\\d)"));
  static const QRegularExpression percent(QStringLiteral("(?<=\\d) ?%"));
  return text.remove(thousands)
      .replace(time, QStringLiteral("\\1時\\2分"))
      .replace(percent, QStringLiteral("パーセント"))
      .replace(point, QStringLiteral("点"));
}

/// A small vowel that makes one sound with the kana before it.
bool joins(QChar before, QChar small) {
  static const QStringList pairs = {
      QStringLiteral("ファ"), QStringLiteral("フィ"), QStringLiteral("フェ"),
      QStringLiteral("フォ"), QStringLiteral("ティ"), QStringLiteral("ディ"),
      QStringLiteral("トゥ"), QStringLiteral("ドゥ"), QStringLiteral("ウィ"),
      QStringLiteral("ウェ"), QStringLiteral("ウォ"), QStringLiteral("ヴァ"),
      QStringLiteral("ヴィ"), QStringLiteral("ヴェ"), QStringLiteral("ヴォ"),
      QStringLiteral("シェ"), QStringLiteral("ジェ"), QStringLiteral("チェ"),
      QStringLiteral("ツァ"), QStringLiteral("ツィ"), QStringLiteral("ツェ"),
      QStringLiteral("ツォ"), QStringLiteral("クァ"), QStringLiteral("クィ"),
      QStringLiteral("クェ"), QStringLiteral("クォ"), QStringLiteral("グァ")};
  return pairs.contains(QString(before) + small);
}

/// The large form of a small kana that makes no sound of its own.
QChar largeForm(QChar c) {
  static const QString small = QStringLiteral("ァィゥェォヮヵヶ");
  static const QString large = QStringLiteral("アイウエオワカケ");
  const qsizetype at = small.indexOf(c);
  return at < 0 ? c : large[at];
}

QChar katakana(QChar c) {
  constexpr char16_t between = u'ア' - u'あ';
  if (c >= u'ぁ' && c <= u'ゖ') return QChar(static_cast<char16_t>(c.unicode() + between));
  return c;
}

}  // namespace

ReadableText readableText(const QString& text) {
  // The long dots would become three full stops.
  const QString plain = withPlainNumbers(QString(text)
                                             .replace(u'…', u'、')
                                             .replace(u'‥', u'、')
                                             .normalized(QString::NormalizationForm_KC));
  ReadableText readable;
  for (qsizetype at = 0; at < plain.size();) {
    const QChar c = plain[at];
    if (isJapanese(c)) {
      readable.japanese += c;
      ++at;
      continue;
    }
    const QRegularExpressionMatch latin = latinRun().match(
        plain, at, QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption);
    if (latin.hasMatch()) {
      readable.japanese += latinPlace;
      readable.latin.append(latinText(latin.captured()));
      at = latin.capturedEnd();
      continue;
    }
    ++at;
    if ((c.unicode() < 0x80 && c.isDigit()) || c == u' ')
      readable.japanese += c;
    else if (c.isSpace())
      readable.japanese += longPause;
    else if (const QChar pause = pauseOf(c); !pause.isNull())
      readable.japanese += pause;
  }
  return readable;
}

QString speakableKana(const QString& kana) {
  QString said;
  for (QChar c : kana) {
    const QChar before = said.isEmpty() ? QChar() : said.back();
    c = katakana(c);
    if (isPause(c)) {
      if (said.isEmpty()) continue;
      // A longer pause swallows a shorter one.
      if (!isPause(before))
        said += c;
      else if (before == shortPause)
        said.back() = c;
      continue;
    }
    if (c == longMark && (said.isEmpty() || isPause(before) || before == longMark ||
                          before == u'ッ' || before == u'ン'))
      continue;
    if (const QChar large = largeForm(c); large != c && !joins(before, c)) c = large;
    if (c == u'ヲ') c = u'オ';
    if (c == longMark || (c >= u'ア' && c <= u'ヴ') || c == u'ァ') said += c;
  }
  return said;
}

}  // namespace tavoli
