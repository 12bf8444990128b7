// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Text.h"

#include <QLocale>

#include <algorithm>

namespace tavoli {

namespace {

/// The longest start of the text that reads as a number, leading blanks left out.
QStringView numberStart(QStringView text, bool withPoint) {
  qsizetype begin = 0;
  while (begin < text.size() && text[begin] == u' ') ++begin;
  qsizetype end = begin;
  if (end < text.size() && (text[end] == u'-' || text[end] == u'+')) ++end;
  bool pointSeen = !withPoint;
  while (end < text.size()) {
    const char16_t c = text[end].unicode();
    const bool digit = c >= u'0' && c <= u'9';
    if (!digit && (c != u'.' || pointSeen)) break;
    pointSeen = pointSeen || c == u'.';
    ++end;
  }
  return text.sliced(begin, end - begin);
}

}  // namespace

QString trimBlanks(QStringView text) {
  while (!text.isEmpty() && text.front() == u' ') text = text.sliced(1);
  while (!text.isEmpty() && text.back() == u' ') text.chop(1);
  return text.toString();
}

QString cut(QStringView text, qsizetype position, qsizetype length) {
  const qsizetype begin = std::clamp<qsizetype>(position - 1, 0, text.size());
  const qsizetype end = std::clamp<qsizetype>(position - 1 + length, begin, text.size());
  return text.sliced(begin, end - begin).toString();
}

QString cutFrom(QStringView text, qsizetype position) {
  return cut(text, position, text.size());
}

int numberOf(QStringView text) {
  return numberStart(text, false).toInt();
}

double realOf(QStringView text) {
  return QLocale::c().toDouble(numberStart(text, true));
}

QString digits(int value, int digits) {
  return QString::number(value).rightJustified(digits, u'0');
}

QString fixedWidth(QStringView text, int width) {
  return text.left(width).toString().leftJustified(width, u' ');
}

QString sentencePlaces(QStringView 文番) {
  return trimBlanks(文番).rightJustified(6, u' ');
}

bool isSentenceEntry(QStringView entry) {
  return entry.size() >= 7 && entry[6] == sentenceMark;
}

QString storedSpelling(QString text) {
  return text.replace(u'〜', u'～').replace(u'−', u'－');
}

}  // namespace tavoli
