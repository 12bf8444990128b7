#include <gtest/gtest.h>

#include "app/LoginLayout.h"

namespace tavoli {
namespace {

TEST(LoginLayout, EnlargesEverythingOnAVeryLargeScreen) {
  const LoginLayout layout = loginLayout({3840, 2160});
  EXPECT_EQ(layout.scale, 2);
  EXPECT_EQ(layout.pixelsPerUnit({3840, 2100}), 2);
  // In the middle, counted in pixels.
  EXPECT_EQ(2 * layout.logo.x() + LoginLayout::logoSize.width(), 3840 / 2);
}

TEST(LoginLayout, ShowsAllPicturesWhole) {
  for (int width = 640; width <= 4000; width += 240) {
    for (int height = 480; height <= 2400; height += 60) {
      const LoginLayout layout = loginLayout({width, height});
      const QSize area(width, height - 90);
      const double unit = layout.pixelsPerUnit(area);
      const QPoint mottoEnd =
          layout.motto + QPoint(LoginLayout::mottoSize.width(), LoginLayout::mottoSize.height());
      EXPECT_LE(mottoEnd.x() * unit, width + 0.5) << width << 'x' << height;
      EXPECT_LE(mottoEnd.y() * unit, area.height() + 0.5) << width << 'x' << height;
      EXPECT_LE((layout.spriteTop + LoginLayout::walkingSize.height()) * unit, area.height() + 0.5);
      EXPECT_LE(unit, layout.scale);
      EXPECT_GT(unit, 0.5);
    }
  }
}

}  // namespace
}  // namespace tavoli
