#include "practice/QuestionRequests.h"

#include <algorithm>

#include "data/Text.h"

namespace tavoli {

QString QuestionRequests::request(const PracticeItem& item) {
  const QString key = trimBlanks(item.itemEnglish);
  const auto sameKey = [&](const PracticeItem& noted) {
    return trimBlanks(noted.itemEnglish) == key;
  };
  if (std::ranges::any_of(m_items, sameKey)) return QStringLiteral("既に印刷が要求されています。");
  if (m_items.size() >= capacity)
    return QStringLiteral("印刷数の上限 %1 を超えました。").arg(capacity);
  m_items.push_back(item);
  return QStringLiteral(
             "終了時に、この問題と正解、コメントを印刷します。\n%1\n"
             "                  Enterキーを押して下さい。")
      .arg(key);
}

}  // namespace tavoli
