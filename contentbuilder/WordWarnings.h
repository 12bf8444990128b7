// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "data/CurrentRecord.h"

namespace tavoli {

/// How a word is named in warnings, and in the list of those that are accepted.
QString wordName(const QString& table, const QString& key);

/// What is seldom meant in a word; `record` is the row's record taken apart.
Warnings wordWarnings(const QString& table, const ContentRow& row, const CurrentRecord& record);

/// A word of the content, for the comparison with others.
struct KnownWord {
  QString table;
  const ContentRow* row;
  QStringList 同;
  QStringList meanings;
};

/// Meanings that two words of comparable tables share while they do not name each other as
/// synonyms: one warning for each word that does not name the other.
Warnings sharedMeanings(const std::vector<KnownWord>& words);

}  // namespace tavoli
