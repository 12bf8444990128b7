// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <limits>

// The texts to which every run adds a line.
namespace tavoli {

/// For a text that keeps all its lines.
inline constexpr qsizetype noEnd = std::numeric_limits<qsizetype>::max();

/// The lines of both texts: of two of which one goes on from the other the longer one, else those
/// of the first and behind them what only the second has. A text keeps its last `most` lines.
QStringList joinedLines(const QStringList& first, const QStringList& second, qsizetype most);

}  // namespace tavoli
