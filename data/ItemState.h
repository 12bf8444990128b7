// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "data/CurrentRecord.h"

namespace tavoli {

/// The memory state of a whole item, summed up from its 小問.
struct ItemState {
  MemoryState state = MemoryState::うろ覚え;
  /// Codes that are no memory state, each with the guard text that names it; empty on sound data.
  QStringList complaints;
};
ItemState itemState(const CurrentRecord& record, const QString& key);

}  // namespace tavoli
