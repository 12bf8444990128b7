// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

#include "system/sound/Samples.h"

namespace tavoli {

/// The sound of a WAV file, its channels made one, at our rate: whole numbers of 8 to 32 bits or
/// floating point of 32. A length that the file does not keep, as programs write it that do not
/// know it beforehand, is passed over. Nothing when it is no such file.
std::optional<Samples> soundOfWave(const QByteArray& file);

}  // namespace tavoli
