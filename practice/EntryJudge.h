// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "practice/RunState.h"

namespace tavoli {

class AnswerScreen;

/// Judges what is typed for a 小問, and tells of what is not taken; in the practice and in the
/// review alike.
class EntryJudge {
 public:
  explicit EntryJudge(AnswerScreen& screen) : m_screen(screen) {}

  /// The verdict on an entry for the k-th 小問. Nothing for one that holds no more than what was
  /// given: it costs nothing, and the 小問 is asked again.
  std::optional<Comparison> judge(const CurrentRecord& record, int k, const QString& typed,
                                  const ComparisonSettings& settings) const;
  /// Puts the given start back into the answer box of a sentence, empties that of a word.
  void askAgain(const CurrentRecord& record, int k) const;

  /// Tells why an entry is not taken. A slip of the mark at the end leaves the entry in the answer
  /// box.
  void refuse(const CurrentRecord& record, int k, const Comparison& comparison) const;
  /// Looks up what was typed where a word was asked.
  void lookUp(const CurrentRecord& record, const Comparison& comparison) const;

 private:
  AnswerScreen& m_screen;
};

/// Whether only the mark at the end of the entry is wrong.
inline bool isSlip(Verdict verdict) {
  return verdict == Verdict::MarkMissing || verdict == Verdict::WrongMark;
}

}  // namespace tavoli
