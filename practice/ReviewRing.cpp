// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/ReviewRing.h"

#include <algorithm>

namespace tavoli {

ReviewRing::ReviewRing(int reviewCycle)
    : m_reviewCycle(std::max(0, reviewCycle)),
      m_reviewList(static_cast<size_t>(2 * m_reviewCycle), 0) {}

std::vector<int> ReviewRing::reviewCheck(int reviewSlot) {
  if (m_reviewCycle == 0) return {};
  m_reviewList[static_cast<size_t>(m_reviewCount % (2 * m_reviewCycle))] = reviewSlot;
  ++m_reviewCount;
  if (m_reviewCount <= m_reviewCycle || m_reviewCount % m_reviewCycle != 0) return {};
  const auto from = m_reviewList.begin() + m_reviewCount % (2 * m_reviewCycle);
  if (*from == 0) return {};
  return {from, from + m_reviewCycle};
}

void ReviewRing::clear() {
  m_reviewCount = 0;
  std::fill(m_reviewList.begin(), m_reviewList.end(), 0);
}

}  // namespace tavoli
