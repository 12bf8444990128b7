// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

/// The title of a window: what it is for, and whose it is.
inline QString windowTitle(const QString& purpose) {
  return purpose + QStringLiteral(" - Tavoli");
}

}  // namespace tavoli
