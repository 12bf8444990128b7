// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "lookup/LookUp.h"

namespace tavoli {

/// A dictionary as it is offered for looking words up.
struct Dictionary {
  QString heading;
  LookUp lookUp;
};

/// The dictionary of a table of words: `rows` walks over it, and must outlive what is returned.
Dictionary dictionaryOf(const QString& table, TableCursor& rows);

}  // namespace tavoli
