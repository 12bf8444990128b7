#include <gtest/gtest.h>

#include "app/LoginLayout.h"
#include "app/SpriteWalk.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

TEST(SpriteWalk, WalksInStandsThroughItsClipAndBeginsAgain) {
  SpriteWalk walk;
  for (int step = 0; step < 3 * 71; ++step) {
    SCOPED_TRACE(step);
    const int present = step % 71 + 1;
    const bool walking = present <= 60;
    const SpriteStep shown = walk.tick();
    ASSERT_EQ(shown.clip, walking ? SpriteStep::Clip::Walking : SpriteStep::Clip::Standing);
    ASSERT_EQ(shown.frame, walking ? (present - 1) % 6 : present - 61);
    ASSERT_EQ(shown.left, std::min(present, 60));
  }
}

TEST(LoginLayout, FollowsTheClassOfTheScreen) {
  constexpr QSize smallForm(800, 587);
  const struct {
    const char* name;
    QSize screen;
    std::optional<QSize> form;
    int fontSize;
    int spriteTop;
    QPoint logo;
    QPoint motto;
  } cases[] = {
      {"small", {640, 480}, smallForm, 10, 460, {200, 100}, {180, 520}},
      {"last small", {800, 600}, smallForm, 10, 460, {200, 100}, {180, 520}},
      {"low", {1280, 720}, std::nullopt, 12, 540, {329, 100}, {300, 530}},
      {"centred", {1024, 768}, std::nullopt, 12, 540, {321, 100}, {292, 570}},
      {"full HD", {1920, 1080}, std::nullopt, 12, 540, {315, 100}, {300, 570}},
      {"tallest", {1920, 1400}, std::nullopt, 12, 540, {315, 100}, {300, 570}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const LoginLayout layout = loginLayout(c.screen);
    EXPECT_EQ(layout.form, c.form);
    EXPECT_EQ(layout.fontSize, c.fontSize);
    EXPECT_EQ(layout.scale, 1);
    EXPECT_EQ(layout.spriteTop, c.spriteTop);
    EXPECT_EQ(layout.logo, c.logo);
    EXPECT_EQ(layout.motto, c.motto);
  }
}

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
