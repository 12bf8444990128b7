#pragma once

#include <QChar>
#include <QString>

namespace tavoli {

/// How well something is remembered, as it is stored.
inline constexpr QChar memory全然 = u'0';
inline constexpr QChar memoryうろ覚え = u'1';
inline constexpr QChar memory完全 = u'2';

/// The name of a memory state; empty for any other code.
inline QString memoryName(QChar code) {
  if (code == memory全然) return QStringLiteral("全然");
  if (code == memoryうろ覚え) return QStringLiteral("うろ覚え");
  return code == memory完全 ? QStringLiteral("完全") : QString();
}

}  // namespace tavoli
