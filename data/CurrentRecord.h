// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

#include <vector>

#include "data/Codes.h"

namespace tavoli {

/// One thing to type: a blank of a sentence, or a meaning of a word.
struct SubQuestion {
  MemoryState 記 = MemoryState::全然;
  int 小問回数 = 0;    ///< words only: how often it was practised, 0 to 99
  QString 日本語;      ///< words only: the meaning
  QString 正;          ///< sentences only: the answer
  QString 同;          ///< sentences only: the packed alternatives, kept to the letter
  int 先頭文字数 = 0;  ///< sentences only: characters of the answer given in advance
  int 省略開始 = 0;    ///< sentences only: first character that may be left out; 0 for none
  int 省略終了 = 0;    ///< sentences only: last character that may be left out
};

/// The item that is being asked, taken out of its packed text. 小問 count from 1, at most 19.
struct CurrentRecord {
  bool sentence = false;
  QString 問題文;  ///< sentences only, with display marks
  QString 英語;    ///< words only: the key
  QString 発音;    ///< words only
  QStringList 同;  ///< words only: the synonyms
  QString コメント;
  std::vector<SubQuestion> 小問;
  /// How many 小問 can be asked: up to the first one whose text is empty.
  int 小問数 = 0;
  /// False when the packed text was damaged, so that packing it again would change it.
  bool complete = true;

  bool has(int k) const { return k >= 1 && k <= 小問数; }
  /// The k-th 小問, which must exist.
  SubQuestion& at(int k) { return 小問[static_cast<size_t>(k - 1)]; }
  const SubQuestion& at(int k) const { return 小問[static_cast<size_t>(k - 1)]; }
  /// 正 of a sentence, 日本語 of a word; empty where there is no k-th 小問.
  QString text(int k) const;
  /// 記 of the k-th 小問; none where there is none.
  MemoryState 記(int k) const { return has(k) ? at(k).記 : MemoryState::none; }
};

inline constexpr int maxSubQuestions = 19;

/// Takes a packed record apart. Sentences have the fields 問|正|コ, words 発音|同|日|コ; `key` is
/// the row's key. Never fails: what is damaged stays empty or 0, and `complete` tells.
CurrentRecord ParseRecord(const QString& recordText, const QString& key, TableCode tableCode);

/// The packed text of a record: the inverse of ParseRecord.
QString packRecord(const CurrentRecord& record);

/// 発音 as it is shown: stressed letters in colour, warnings written out. For a text of one
/// character or none `shownBefore` stays.
QString BuildPronunciationText(const QString& 発音, const QString& shownBefore);

}  // namespace tavoli
