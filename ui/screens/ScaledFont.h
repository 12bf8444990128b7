// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

namespace tavoli {

inline QFont scaled(QFont font, double factor) {
  font.setPointSizeF(font.pointSizeF() * factor);
  return font;
}

}  // namespace tavoli
