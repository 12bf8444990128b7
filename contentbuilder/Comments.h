// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"

// What comments hold, and what of them is spoken.
namespace tavoli {

/// An example as it stands in a comment: English, two blanks, Japanese.
struct Example {
  QString english;
  QString japanese;
};

/// The lines of a comment without display marks; none for an empty one.
QStringList commentLines(const QString& comment);

/// Nothing when the line is no example.
std::optional<Example> exampleIn(const QString& line);

/// What the voice would read of lines that explain in Japanese but begin with English words: a line
/// is read up to its first Japanese character.
QStringList spokenFragments(const QString& comment);

/// `name`: the item's name in warnings.
Warning fragmentWarning(const ContentRow& row, const QString& name, const QString& fragment);

}  // namespace tavoli
