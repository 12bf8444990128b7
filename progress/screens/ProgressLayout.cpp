// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/screens/ProgressLayout.h"

namespace tavoli {

ProgressLayout progressLayout(int screenHeight) {
  constexpr int twipsPerPixel = 15;
  constexpr int smallScreen = 600;
  const int button = screenHeight <= smallScreen ? 450 : 600;
  int margin = 600;
  switch (screenHeight) {
    case smallScreen:
      margin = 100;
      break;
    case 1024:
    case 1050:
    case 1080:
    case 1200:
    case 1400:
      margin = 1000;
      break;
    default:
      if (screenHeight < smallScreen) margin = 0;
      break;
  }
  return {button / twipsPerPixel, margin / twipsPerPixel};
}

}  // namespace tavoli
