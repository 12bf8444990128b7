// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/ShownItem.h"

#include <algorithm>

namespace tavoli {

void ShownItem::show() {
  m_POS1 = 1;
  m_wordShownCount = 0;
  m_answered.reset();
  m_set.markShown(m_POS);
  m_record = m_set.parsed(m_POS);
}

bool ShownItem::fnNextExist(MemorySelect memorySelect) {
  while (m_record.has(m_POS1) && !memoryAdmitted(memorySelect, m_record.記(m_POS1))) ++m_POS1;
  return m_record.has(m_POS1);
}

void ShownItem::leaveAnswered() {
  m_answered.set(static_cast<size_t>(m_POS1));
  leave();
}

void ShownItem::countMeaning() {
  int& times = m_record.at(m_POS1).小問回数;
  times = std::min(maxTimes, times + 1);
}

bool ShownItem::remember(MemoryState state) {
  m_record.at(m_POS1).記 = state;
  return m_set.RewriteRecord(m_POS, m_record);
}

}  // namespace tavoli
