// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QSize>

#include <optional>

namespace tavoli {

/// Where things stand on the login screen. Places and sizes count in units of the picture, which
/// are pixels times `scale`; the origin is the top left of the area below the menu.
struct LoginLayout {
  static constexpr QSize logoSize{382, 110};
  static constexpr QSize mottoSize{440, 72};
  static constexpr QSize walkingSize{63, 116};
  static constexpr QSize standingSize{60, 109};

  std::optional<QSize> form;  ///< in pixels; nothing: the whole screen minus the task bar
  int fontSize = 0;           ///< of the fields, in points at a scale of 1
  double scale = 1;
  int spriteTop = 0;
  QPoint logo;
  QPoint motto;

  /// Pixels per unit in an area of that many pixels: the scale, or less where the pictures would
  /// otherwise be cut off.
  double pixelsPerUnit(const QSize& area) const;
};

/// The layout for a screen of that many pixels.
LoginLayout loginLayout(const QSize& screen);

}  // namespace tavoli
