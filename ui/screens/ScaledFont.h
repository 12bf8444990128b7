#pragma once

#include <QFont>

namespace tavoli {

inline QFont scaled(QFont font, double factor) {
  font.setPointSizeF(font.pointSizeF() * factor);
  return font;
}

}  // namespace tavoli
