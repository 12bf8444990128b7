// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/QuestionRequests.h"

#include <algorithm>

#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

QString QuestionRequests::request(const PracticeItem& item) {
  const QString key = trimBlanks(item.itemEnglish);
  const auto sameKey = [&](const PracticeItem& noted) {
    return trimBlanks(noted.itemEnglish) == key;
  };
  if (std::ranges::any_of(m_items, sameKey)) return u"既に印刷が要求されています。"_s;
  if (m_items.size() >= capacity) return u"印刷数の上限 %1 を超えました。"_s.arg(capacity);
  m_items.push_back(item);
  return u"終了時に、この問題と正解、コメントを印刷します。\n%1\n"
         "                  Enterキーを押して下さい。"_s.arg(key);
}

}  // namespace tavoli
