// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/StoreLog.h"

namespace tavoli {

Q_LOGGING_CATEGORY(storeLog, "tavoli.store")

}  // namespace tavoli
