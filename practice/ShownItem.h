// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conditions/PracticeConditions.h"
#include "data/CurrentRecord.h"
#include "practice/PracticeSet.h"
#include "practice/QuestionView.h"

namespace tavoli {

/// The item of the run that is on the screen, and its 小問 that is asked. What is learnt of it goes
/// into the set at once.
class ShownItem {
 public:
  explicit ShownItem(PracticeSet& set) : m_set(set) {}

  /// Where the run stands, from 1; behind the last item until show() is called.
  int POS() const { return m_POS; }
  void moveTo(int POS) { m_POS = POS; }
  /// Takes the item at POS apart and begins with its first 小問.
  void show();

  const PracticeItem& item() const { return m_set.item(m_POS); }
  const CurrentRecord& record() const { return m_record; }
  int POS1() const { return m_POS1; }  ///< the present 小問, from 1
  const SubQuestion& 小問() const { return m_record.at(m_POS1); }
  /// How many 小問 of this item have been asked.
  int wordShownCount() const { return m_wordShownCount; }
  const AnsweredSubQuestions& answered() const { return m_answered; }
  /// A 小問 that is not 全然 is asked as a mini test.
  bool inMiniTest() const {
    return m_record.has(m_POS1) && m_record.記(m_POS1) != MemoryState::全然;
  }

  /// Moves POS1 to the next 小問 whose memory state is admitted. False when none is left; POS1 then
  /// stands behind the last one.
  bool fnNextExist(MemorySelect memorySelect);
  /// The present 小問 is asked.
  void ask() { ++m_wordShownCount; }
  /// Leaves the present 小問, answered rightly or not.
  void leaveAnswered();
  void leave() { ++m_POS1; }

  /// A right answer counts as one practice of the meaning of a word.
  void countMeaning();
  /// Gives the present 小問 a memory state and packs the record into the set. False when the record
  /// is damaged: the set then keeps what it has.
  [[nodiscard]] bool remember(MemoryState state);
  /// The item was practised once more.
  void countItem() { m_set.countItem(m_POS); }

 private:
  PracticeSet& m_set;
  CurrentRecord m_record;
  int m_POS = 1;
  int m_POS1 = 1;
  int m_wordShownCount = 0;
  AnsweredSubQuestions m_answered;
};

}  // namespace tavoli
