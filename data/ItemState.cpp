// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/ItemState.h"

using namespace Qt::StringLiterals;

namespace tavoli {

ItemState itemState(const CurrentRecord& record, const QString& key) {
  bool any全然 = false;
  bool anyうろ覚え = false;
  bool any完全 = false;
  ItemState result;
  for (int k = 1; k <= record.小問数 && record.記(k) != MemoryState::none; ++k) {
    const MemoryState code = record.記(k);
    any全然 = any全然 || code == MemoryState::全然;
    anyうろ覚え = anyうろ覚え || code == MemoryState::うろ覚え;
    any完全 = any完全 || code == MemoryState::完全;
    if (memoryName(code).isEmpty()) {
      result.complaints.append((record.sentence ? u"Stop34"_s : u"Stop38"_s) + u' ' + key);
    }
  }
  if (!any全然 && !anyうろ覚え) {
    if (any完全) {
      result.state = MemoryState::完全;
    } else {
      result.complaints.append((record.sentence ? u"Stop36"_s : u"Stop39"_s) + u' ' + key);
    }
  }
  // One blank of a sentence that is not known makes the sentence unknown; a word is known a little
  // as soon as one of its meanings is.
  if (any全然 && (record.sentence || (!anyうろ覚え && !any完全))) result.state = MemoryState::全然;
  if (!record.sentence && !any全然 && !anyうろ覚え && !any完全)
    result.complaints.append(u"Stop3A "_s + key);
  return result;
}

}  // namespace tavoli
