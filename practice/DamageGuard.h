// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>

#include "itemtext/MarkedText.h"
#include "practice/RunState.h"

namespace tavoli {

class Dialogs;

/// Tells the learner about records that are damaged, each of them once in a run.
class DamageGuard {
 public:
  DamageGuard(const RunState& state, Dialogs& dialogs) : m_state(state), m_dialogs(dialogs) {}

  /// The text with its marks taken out; tells when they do not pair.
  MarkedText marked(const QString& text);
  /// Tells when the present record has no 小問. `FK前問題` says that F4 led to it.
  void guardEmptyRecord(bool FK前問題);
  /// That the present item's memory cannot change, since its record cannot be written again.
  /// Empty where that was said before.
  QString memoryUnchanged();

 private:
  /// Whether a kind of damage of the present item is news: the first time only.
  bool isNews(const QString& kind);

  const RunState& m_state;
  Dialogs& m_dialogs;
  QSet<QString> m_told;  ///< kinds with tables and keys of the items
};

}  // namespace tavoli
