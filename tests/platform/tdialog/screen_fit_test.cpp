// How a dialog comes to stand on the screen: which font, and where.
#include "platform/tdialog/screen_fit.h"

#include <gtest/gtest.h>

namespace tdialog::test {
namespace {

// A dialog of 20 by 30 pixels for each point, in a border of 4 pixels and under a caption of 20.
PixelSize SizeWith(int points) { return {20 * points + 8, 30 * points + 28}; }

TEST(ScreenFit, TakesTheLargestFontThatFits) {
  const struct {
    const char* name;
    int points;
    PixelSize room;
    int expected;
  } rows[] = {
      {"a large screen", 10, {1280, 1024}, 10},
      {"just room", 10, {208, 328}, 10},
      {"a pixel too narrow", 10, {207, 328}, 9},
      {"a pixel too low", 10, {208, 327}, 9},
      {"much too low", 10, {1280, 210}, 6},
      {"much too narrow", 10, {130, 1024}, 6},
      {"too small for what can be read", 10, {50, 50}, 5},
      {"a small font that fits", 4, {1280, 1024}, 4},
      {"a small font that does not", 4, {50, 50}, 4},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected, FittingPoints(row.points, row.room, &SizeWith)) << row.name;
  }
}

TEST(ScreenFit, MovesTheWindowOntoTheScreen) {
  constexpr PixelRect kArea{-100, 20, 900, 720};
  const struct {
    const char* name;
    PixelRect window;
    PixelRect expected;
  } rows[] = {
      {"inside", {0, 30, 200, 130}, {0, 30, 200, 130}},
      {"on all edges", kArea, kArea},
      {"over the right edge", {800, 30, 1000, 130}, {700, 30, 900, 130}},
      {"over the lower edge", {0, 700, 200, 800}, {0, 620, 200, 720}},
      {"over the left edge", {-150, 30, 50, 130}, {-100, 30, 100, 130}},
      {"over the upper edge", {0, 0, 200, 100}, {0, 20, 200, 120}},
      {"over a corner", {850, 700, 1050, 800}, {700, 620, 900, 720}},
      {"wider than the screen", {0, 30, 1200, 130}, {-100, 30, 1100, 130}},
      {"higher than the screen", {0, 30, 200, 830}, {0, 20, 200, 820}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected, MovedInside(row.window, kArea)) << row.name;
  }
}

}  // namespace
}  // namespace tdialog::test
