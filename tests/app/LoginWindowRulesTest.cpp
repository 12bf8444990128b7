#include <gtest/gtest.h>

#include "app/LoginLayout.h"
#include "app/SpriteWalk.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

TEST(SpriteWalk, WalksInStandsThroughItsClipAndBeginsAgain) {
  SpriteWalk walk;
  for (int round = 0; round < 3; ++round) {
    SCOPED_TRACE(round);
    for (int step = 1; step <= 60; ++step) {
      const SpriteStep shown = walk.tick();
      ASSERT_EQ(shown.clip, SpriteStep::Clip::Walking) << step;
      ASSERT_EQ(shown.frame, (step - 1) % 6) << step;
      ASSERT_EQ(shown.left, step);
    }
    for (int step = 61; step <= 71; ++step) {
      const SpriteStep shown = walk.tick();
      ASSERT_EQ(shown.clip, SpriteStep::Clip::Standing) << step;
      ASSERT_EQ(shown.frame, step - 61) << step;
      ASSERT_EQ(shown.left, 60) << step;
    }
  }
}

struct LayoutCase {
  const char* name;
  QSize screen;
  std::optional<QSize> form;
  int fontSize;
  int spriteTop;
  QPoint logo;
  QPoint motto;
};

class LoginLayoutOfSize : public testing::TestWithParam<LayoutCase> {};

TEST_P(LoginLayoutOfSize, FollowsItsClass) {
  const LayoutCase& expected = GetParam();
  const LoginLayout layout = loginLayout(expected.screen);
  EXPECT_EQ(layout.form, expected.form);
  EXPECT_EQ(layout.fontSize, expected.fontSize);
  EXPECT_EQ(layout.scale, 1);
  EXPECT_EQ(layout.spriteTop, expected.spriteTop);
  EXPECT_EQ(layout.logo, expected.logo);
  EXPECT_EQ(layout.motto, expected.motto);
}

constexpr QSize smallForm(800, 587);

INSTANTIATE_TEST_SUITE_P(
    Screens, LoginLayoutOfSize,
    testing::Values(
        LayoutCase{"small", {640, 480}, smallForm, 10, 460, {200, 100}, {180, 520}},
        LayoutCase{"lastSmall", {800, 600}, smallForm, 10, 460, {200, 100}, {180, 520}},
        LayoutCase{"low", {1280, 720}, std::nullopt, 12, 540, {329, 100}, {300, 530}},
        LayoutCase{"centred", {1024, 768}, std::nullopt, 12, 540, {321, 100}, {292, 570}},
        LayoutCase{"sxga", {1280, 1024}, std::nullopt, 12, 540, {315, 100}, {300, 570}},
        LayoutCase{"fullHd", {1920, 1080}, std::nullopt, 12, 540, {315, 100}, {300, 570}},
        LayoutCase{"tallest", {1920, 1400}, std::nullopt, 12, 540, {315, 100}, {300, 570}}),
    [](const auto& test) { return std::string(test.param.name); });

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
