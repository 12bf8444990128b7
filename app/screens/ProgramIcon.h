// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace tavoli {

/// The icon of all windows.
QIcon programIcon();

}  // namespace tavoli
