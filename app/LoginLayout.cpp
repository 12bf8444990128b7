// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/LoginLayout.h"

#include <algorithm>
#include <array>

namespace tavoli {

namespace {

constexpr int twipsPerPixel = 15;
constexpr int formWidthTwips = 12000;
constexpr int formHeightTwips = 8800;

constexpr int smallScreenHeight = 600;
constexpr int lowScreenHeight = 720;
/// Screens larger than this show everything enlarged.
constexpr QSize unscaledScreen{1024, 1080};

constexpr std::array wellKnownHeights{1024, 1050, 1080, 1200, 1400};

constexpr int inPixels(int twips) {
  return (twips + twipsPerPixel / 2) / twipsPerPixel;
}

double scaleFor(const QSize& screen) {
  return std::max(1.0, std::min(double(screen.width()) / unscaledScreen.width(),
                                double(screen.height()) / unscaledScreen.height()));
}

}  // namespace

double LoginLayout::pixelsPerUnit(const QSize& area) const {
  const int right = std::max(logo.x() + logoSize.width(), motto.x() + mottoSize.width());
  const int bottom = std::max(spriteTop + walkingSize.height(), motto.y() + mottoSize.height());
  return std::min({scale, double(area.width()) / right, double(area.height()) / bottom});
}

LoginLayout loginLayout(const QSize& screen) {
  LoginLayout layout;
  if (screen.height() <= smallScreenHeight) {
    layout.form = QSize(inPixels(formWidthTwips), inPixels(formHeightTwips));
    layout.fontSize = 10;
    layout.spriteTop = 460;
    layout.logo = {200, 100};
    layout.motto = {180, 520};
    return layout;
  }
  layout.fontSize = 12;
  layout.spriteTop = 540;
  if (std::ranges::find(wellKnownHeights, screen.height()) != wellKnownHeights.end()) {
    layout.logo = {315, 100};
    layout.motto = {300, 570};
    return layout;
  }
  layout.scale = scaleFor(screen);
  const auto centred = [&](const QSize& size) {
    return std::max(0, (int(screen.width() / layout.scale) - size.width()) / 2);
  };
  if (screen.height() <= lowScreenHeight) {
    layout.motto = {300, 530};
    layout.logo = {300 + (LoginLayout::mottoSize.width() - LoginLayout::logoSize.width()) / 2, 100};
  } else {
    layout.motto = {centred(LoginLayout::mottoSize), 570};
    layout.logo = {centred(LoginLayout::logoSize), 100};
  }
  return layout;
}

}  // namespace tavoli
