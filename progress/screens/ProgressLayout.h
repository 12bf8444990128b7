// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavoli {

/// Measures of the progress screen that depend on the height of the screen in pixels.
struct ProgressLayout {
  int buttonHeight;     ///< in pixels
  int tablesTopMargin;  ///< in pixels
};

ProgressLayout progressLayout(int screenHeight);

}  // namespace tavoli
