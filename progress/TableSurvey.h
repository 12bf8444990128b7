#pragma once

#include "progress/ProgressCounters.h"

namespace tavoli {

class TableCursor;

/// Counts the rows of a dictionary anew by their memory state, up to its reserved rows. A row whose
/// state is none counts nowhere; what cannot be read is not counted.
void surveyWordTable(TableCursor& rows, Three& memory);

/// The same for the sentences of each level.
void surveySentences(TableCursor& rsBDIC, ByLevel& memory);

}  // namespace tavoli
