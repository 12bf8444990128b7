// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "itemtext/MarkedText.h"

namespace tavoli {

/// The width of a piece of a line, in the unit that the paper is measured in.
using TextMeasure = std::function<double(const QString& text)>;

/// Breaks a text into the lines that it takes on paper; "\n" ends a line too. A line is broken
/// behind a blank, behind a punctuation mark, or between two Japanese characters; never inside a
/// Latin word or a number, and never so that a closing mark begins a line. Only where a line holds
/// no such place is it broken elsewhere, so that nothing is ever wider than `width` but a single
/// character.
///
/// All characters but the "\n" are kept. Blanks at a line's end stay there and are not measured
/// unless they are marked, since nothing of them is seen. A marked span that is cut goes on in the
/// next line.
std::vector<MarkedText> breakLines(const MarkedText& text, double width,
                                   const TextMeasure& measure);

}  // namespace tavoli
