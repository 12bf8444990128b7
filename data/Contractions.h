// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// The table of contractions that coded substitutions in sentence records refer to. Codes count
// from 1.
namespace tavoli {

inline constexpr int contractionCount = 182;

/// The text that takes the place of the span; empty for a code that is not in the table.
QString contractionText(int code);

/// Whether the code's text is a contraction of `span` or what `span` is a contraction of.
bool contractionFits(int code, QStringView span);

/// The first code that puts `text` in the place of `span`; 0 when the table has none.
int contractionCode(QStringView span, QStringView text);

}  // namespace tavoli
