// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LookUp.h"

#include <algorithm>
#include <cmath>

#include "data/Codes.h"
#include "data/CurrentRecord.h"
#include "data/Schema.h"
#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

bool isLatin(QChar c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

bool isNumber(const QString& text) {
  bool ok = false;
  // The conversion takes "nan" and "inf" too, which are words here.
  return std::isfinite(text.toDouble(&ok)) && ok;
}

/// The end of the run of Latin letters that goes on from `position`.
qsizetype endOfRun(QStringView text, qsizetype position) {
  const auto from = text.begin() + position;
  return position + (std::find_if_not(from, text.end(), isLatin) - from);
}

}  // namespace

QString wordAt(const QString& text, int selectionStart, int selectionLength) {
  qsizetype start = std::clamp<qsizetype>(selectionStart, 0, text.size());
  QStringView searched = text;
  if (selectionLength > 0) {
    searched = searched.left(start + selectionLength);
  } else {
    // A click on the right half of a word's last letter puts the caret behind the word.
    if (start > 0 && (start == text.size() || !isLatin(text[start]))) --start;
    if (start < text.size() && isLatin(text[start]))
      while (start > 0 && isLatin(text[start - 1])) --start;
  }
  const qsizetype end = endOfRun(searched, start);
  return end - start > 1 ? text.sliced(start, end - start) : QString();
}

std::optional<MarkedText> LookUp::find(const QString& text) {
  m_fromEnd = text.isEmpty();
  if (m_fromEnd || isNumber(text)) return std::nullopt;
  const QString key = storedSpelling(text);
  // Among keys that differ only in case, the one that was asked for.
  m_dictionary.Seek(SeekOp::Equal, key);
  if (m_dictionary.NoMatch() && !m_dictionary.failed()) m_dictionary.Seek(SeekOp::AtOrAfter, key);
  leaveReservedRows();
  const MarkedText notFound = plainText(text + u"：Not found."_s);
  return shown().value_or(notFound);
}

std::optional<MarkedText> LookUp::next() {
  m_fromEnd = false;
  if (returnToEntry())
    m_dictionary.MoveNext();
  else
    m_dictionary.MoveFirst();
  if (m_dictionary.atEOF() && !m_dictionary.failed()) m_dictionary.MoveLast();
  leaveReservedRows();
  return shown();
}

std::optional<MarkedText> LookUp::previous() {
  if (m_fromEnd || !returnToEntry())
    m_dictionary.Seek(SeekOp::AtOrBefore, u"zzz"_s);
  else
    m_dictionary.MovePrevious();
  m_fromEnd = false;
  if (m_dictionary.atBOF()) m_dictionary.MoveFirst();
  leaveReservedRows();
  return shown();
}

bool LookUp::returnToEntry() {
  if (!m_entry) return false;
  if (!m_dictionary.hasRow() || m_dictionary.key() != *m_entry)
    m_dictionary.Seek(SeekOp::Equal, *m_entry);
  return m_dictionary.hasRow();
}

void LookUp::leaveReservedRows() {
  while (isReservedKey(m_dictionary.key())) m_dictionary.MovePrevious();
}

std::optional<MarkedText> LookUp::shown() {
  m_entry.reset();
  if (m_dictionary.hasRow()) {
    m_entry = m_dictionary.key();
    return showEntry();
  }
  if (!m_dictionary.failed()) return std::nullopt;
  return plainText(
      u"辞書を読めませんでした。記録は変わっていません。練習を終えて、もう一度始めて下さい。"_s);
}

MarkedText LookUp::showEntry() const {
  const CurrentRecord record =
      ParseRecord(m_dictionary.text(field発同日コ), m_dictionary.key(), TableCode::first);
  const QString code = m_dictionary.text(field記憶);
  QString text = record.英語 + u"　（ "_s + memoryName(codeOf<MemoryState>(code)) + u'　' +
                 m_dictionary.text(field回数) + u"　ﾚﾍﾞﾙ "_s +
                 digits(numberOf(m_dictionary.text(fieldレベル)), 2) + u" ）\n"_s;
  if (!record.同.isEmpty()) text += u"   ("_s + record.同.join(u" ＝ "_s) + u" )\n"_s;
  for (int k = 1; k <= record.小問数; ++k) text += record.text(k) + u"  "_s;
  return parseMarks(text + u'\n' + record.コメント);
}

}  // namespace tavoli
