// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QString>

class QImage;

namespace tavoli {

/// The type of printed texts. Both faces hold Latin and Japanese.
struct PageFont {
  enum class Face { Mincho, Gothic };
  Face face = Face::Mincho;
  double points = 10;
  bool bold = false;
  bool underline = false;
};

/// A document's sheets, one after the other. All measures are twips, 1440 to the inch, counted from
/// the top left corner of the sheet.
class PageSurface {
 public:
  virtual ~PageSurface() = default;
  virtual double width() const = 0;
  virtual double height() const = 0;
  /// The font of what is measured and drawn from here on.
  virtual void setFont(const PageFont& font) = 0;
  virtual double textWidth(const QString& text) const = 0;
  virtual double lineHeight() const = 0;
  /// One line of text, its top left corner at x, y.
  virtual void drawText(double x, double y, const QString& text) = 0;
  virtual void drawLine(double fromX, double fromY, double toX, double toY) = 0;
  virtual void drawPicture(const QRectF& place, const QImage& picture) = 0;
  /// Ends the sheet and begins the next one.
  virtual void newPage() = 0;
};

}  // namespace tavoli
