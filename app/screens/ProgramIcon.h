#pragma once

#include <QIcon>

namespace tavoli {

/// The icon of all windows.
QIcon programIcon();

}  // namespace tavoli
