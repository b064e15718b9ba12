#include "window/buttons/button_column_layout.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tavix {
namespace {

using Layout = ButtonColumnLayout;

// One letter per button, 0 to 10: shown or hidden.
std::string Shown(const Layout& layout) {
  std::string shown;
  for (int k = 0; k < Layout::kButtons; ++k) shown += layout.IsVisible(k) ? 'x' : '.';
  return shown;
}

std::array<int, Layout::kButtons> Tops(const Layout& layout) {
  std::array<int, Layout::kButtons> tops{};
  for (int k = 0; k < Layout::kButtons; ++k) tops[static_cast<std::size_t>(k)] = layout.Top(k);
  return tops;
}

TEST(ButtonColumnLayout, FollowsTheClientHeight) {
  const struct {
    int height;
    int places;
    bool all_fit;
    const char* shown;
    std::array<int, Layout::kButtons> tops;
  } rows[] = {{320, 15, true, ".xxxxxxxxx.", {0, 0, 20, 40, 60, 80, 100, 120, 140, 160, 180}},
              {180, 8, true, ".xxxxxxxxx.", {0, 0, 20, 40, 60, 80, 100, 120, 140, 160, 180}},
              {178, 8, true, ".xxxxxxxxx.", {0, 0, 20, 40, 60, 80, 100, 120, 140, 160, 180}},
              {177, 7, false, "xxxxxxxx..x", {0, 10, 30, 50, 70, 90, 110, 130, 130, 130, 150}},
              {158, 7, false, "xxxxxxxx..x", {0, 10, 30, 50, 70, 90, 110, 130, 130, 130, 150}},
              {157, 6, false, "xxxxxxx...x", {0, 10, 30, 50, 70, 90, 110, 110, 110, 110, 130}},
              {100, 4, false, "xxxxx.....x", {0, 10, 30, 50, 70, 70, 70, 70, 70, 70, 90}},
              {98, 4, false, "xxxxx.....x", {0, 10, 30, 50, 70, 70, 70, 70, 70, 70, 90}},
              {97, 3, false, "xxxx......x", {0, 10, 30, 50, 50, 50, 50, 50, 50, 50, 70}},
              {60, 2, false, "xxx.......x", {0, 10, 30, 30, 30, 30, 30, 30, 30, 30, 50}},
              {38, 1, false, "xx........x", {0, 10, 10, 10, 10, 10, 10, 10, 10, 10, 30}},
              {18, 0, false, "x.........x", {0, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10}},
              {17, -1, false, "x.........x", {0, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10}},
              {15, -1, false, "x.........x", {0, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10}},
              {0, -1, false, "x.........x", {0, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10}}};
  for (const auto& row : rows) {
    const Layout layout(row.height);
    EXPECT_EQ(row.places, layout.Places()) << row.height;
    EXPECT_EQ(row.all_fit, layout.AllFit()) << row.height;
    EXPECT_EQ(1, layout.FirstVisible()) << row.height;
    EXPECT_EQ(row.shown, Shown(layout)) << row.height;
    EXPECT_EQ(row.tops, Tops(layout)) << row.height;
  }
}

TEST(ButtonColumnLayout, ScrollsByOneButtonToBothEnds) {
  Layout layout(100);
  EXPECT_FALSE(layout.ScrollUp());
  const struct {
    const char* shown;
    std::array<int, Layout::kButtons> tops;
  } rows[] = {{"xxxxx.....x", {0, 10, 30, 50, 70, 70, 70, 70, 70, 70, 90}},
              {"x.xxxx....x", {0, 10, 10, 30, 50, 70, 70, 70, 70, 70, 90}},
              {"x..xxxx...x", {0, 10, 10, 10, 30, 50, 70, 70, 70, 70, 90}},
              {"x...xxxx..x", {0, 10, 10, 10, 10, 30, 50, 70, 70, 70, 90}},
              {"x....xxxx.x", {0, 10, 10, 10, 10, 10, 30, 50, 70, 70, 90}},
              {"x.....xxxxx", {0, 10, 10, 10, 10, 10, 10, 30, 50, 70, 90}}};
  constexpr int kSteps = 5;  // the last first-visible button is 10 - 4
  for (int step = 0; step <= kSteps; ++step) {
    EXPECT_EQ(step + 1, layout.FirstVisible());
    EXPECT_EQ(rows[step].shown, Shown(layout)) << step;
    EXPECT_EQ(rows[step].tops, Tops(layout)) << step;
    EXPECT_EQ(step < kSteps, layout.ScrollDown()) << step;
  }
  EXPECT_EQ(rows[kSteps].shown, Shown(layout));  // the refused step changed nothing
  for (int step = kSteps; step >= 0; --step) {
    EXPECT_EQ(rows[step].shown, Shown(layout)) << step;
    EXPECT_EQ(rows[step].tops, Tops(layout)) << step;
    EXPECT_EQ(step > 0, layout.ScrollUp()) << step;
  }
  EXPECT_EQ(rows[0].shown, Shown(layout));
}

TEST(ButtonColumnLayout, TheLastButtonCanBeReachedAtEveryHeight) {
  for (int height = 0; height < 178; ++height) {
    Layout layout(height);
    int steps = 0;
    while (layout.ScrollDown()) ASSERT_LT(++steps, Layout::kButtons) << height;
    if (layout.Places() > 0) {
      EXPECT_TRUE(layout.IsVisible(Layout::kLastMain)) << height;
      EXPECT_EQ(10 - layout.Places(), layout.FirstVisible()) << height;
    } else {
      EXPECT_LE(layout.FirstVisible(), Layout::kLastMain) << height;
    }
    while (layout.ScrollUp()) --steps;
    EXPECT_EQ(0, steps) << height;
    EXPECT_EQ(1, layout.FirstVisible()) << height;
  }
}

// The visible buttons stand without gaps between the two scroll buttons, and inside the window.
TEST(ButtonColumnLayout, VisibleButtonsNeverOverlap) {
  for (int height = 38; height < 400; ++height) {
    Layout layout(height);
    do {
      int next = layout.AllFit() ? 0 : 10;
      for (int k = Layout::kFirstMain; k <= Layout::kLastMain; ++k) {
        if (!layout.IsVisible(k)) continue;
        EXPECT_EQ(next, layout.Top(k)) << height << ' ' << k;
        next += 20;
      }
      if (!layout.AllFit()) {
        EXPECT_EQ(next, layout.Top(Layout::kScrollDown)) << height;
        next += 10;
      }
      EXPECT_LE(next, height + 2);  // the lowest button may lose two rows at the bottom
    } while (!layout.AllFit() && layout.ScrollDown());
  }
}

}  // namespace
}  // namespace tavix
