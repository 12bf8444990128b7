#include "data/StoreLog.h"

namespace tavoli {

Q_LOGGING_CATEGORY(storeLog, "tavoli.store")

}  // namespace tavoli
