// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/Database.h"

namespace tavoli {

/// The settings row of the personal database: four numbers of 4, 4, 5 and 1 digits.
struct AutoPlaySettings {
  int autoCount = 10;        ///< questions of one auto play
  int autoKeyTime = 50;      ///< milliseconds a character
  int autoEnterTime = 2000;  ///< milliseconds before Enter
  /// The sound at the end of the target time: 0 none, 1 a beep, 2 the spoken sentence.
  int timeUpSound = 2;
};

/// Reads the row; where it is missing it is made with the standard values.
AutoPlaySettings readAutoPlaySettings(TableCursor& rsBDIC);
[[nodiscard]] bool saveAutoPlaySettings(TableCursor& rsBDIC, const AutoPlaySettings& settings);

}  // namespace tavoli
