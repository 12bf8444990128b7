// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

namespace tavoli {

/// Why SQLite refused something, for those who look after the program. Keys and records stay out.
Q_DECLARE_LOGGING_CATEGORY(storeLog)

}  // namespace tavoli
