// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "contentbuilder/ContentTable.h"
#include "data/CurrentRecord.h"

namespace tavoli {

/// Whether two words are the same for a learner who types them: blanks and hyphens do not count.
bool sameTyped(const QString& one, const QString& other);

/// What is wrong in the wording of a word, a sentence for each mistake; `record` is the row's
/// record taken apart.
QStringList wordProblems(const ContentRow& row, const CurrentRecord& record);

}  // namespace tavoli
