// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

// Everything that the program plays is mono, of 16 bits, at one rate.
namespace tavoli {

inline constexpr int samplesPerSecond = 44100;

using Samples = std::vector<qint16>;

}  // namespace tavoli
