// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/CurrentRecord.h"
#include "speech/Utterance.h"
#include "tests/support/Print.h"

namespace tavoli::test {

/// A list as one text: the entries between " / ", of each what is spoken, and where that differs
/// " > " and what is shown; "-" for an empty one.
inline QString told(const SpeechList& list) {
  QStringList entries;
  for (const Utterance& entry : list) {
    QString text = entry.spoken == entry.shown ? entry.shown
                                               : entry.spoken + QStringLiteral(" > ") + entry.shown;
    entries.append(entry.isEmpty() ? QStringLiteral("-") : text);
  }
  return entries.join(QStringLiteral(" / "));
}

/// A sentence item; of each answer what stands before "|" is given.
inline CurrentRecord sentence(const QString& 問題文, const QStringList& answers) {
  CurrentRecord record;
  record.sentence = true;
  record.問題文 = 問題文;
  for (QString 正 : answers) {
    SubQuestion s;
    s.先頭文字数 = static_cast<int>(std::max<qsizetype>(0, 正.indexOf(u'|')));
    s.正 = 正.remove(u'|');
    record.小問.push_back(s);
  }
  record.小問数 = static_cast<int>(record.小問.size());
  return record;
}

inline CurrentRecord word(const QString& 英語, const QString& コメント = {}) {
  CurrentRecord record;
  record.英語 = 英語;
  record.コメント = コメント;
  return record;
}

}  // namespace tavoli::test
