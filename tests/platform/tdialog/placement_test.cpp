// The font and the place with which a dialog fits the screen, and the place of its OK button.
#include "platform/tdialog/placement.h"

#include <gtest/gtest.h>

#include <vector>

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

TEST(OkButtonPlace, FirstClearCornerElseAStripBelow) {
  const PixelSize client = {100, 80};
  const PixelSize button = {30, 10};
  const struct Row {
    const char* name;
    std::vector<PixelRect> items;
    PixelRect place;
    int extraHeight;
  } rows[] = {
      {"nothing there", {}, {65, 65, 95, 75}, 0},
      {"items elsewhere", {{0, 0, 60, 80}}, {65, 65, 95, 75}, 0},
      {"touching the margin", {{0, 0, 100, 60}}, {65, 65, 95, 75}, 0},
      {"into the margin", {{0, 70, 61, 80}}, {65, 5, 95, 15}, 0},
      {"both corners taken", {{0, 70, 61, 80}, {90, 0, 100, 3}}, {65, 85, 95, 95}, 20},
      {"one that covers all", {{0, 0, 100, 80}}, {65, 85, 95, 95}, 20},
  };
  for (const Row& row : rows) {
    const auto place = PlaceOkButton(client, button, 5, row.items);
    EXPECT_EQ(row.place, place.button) << row.name;
    EXPECT_EQ(row.extraHeight, place.extraHeight) << row.name;
  }
  const auto narrow = PlaceOkButton({20, 8}, button, 5, {});
  EXPECT_EQ(20, narrow.extraHeight) << "a dialog smaller than the button";
}

}  // namespace
}  // namespace tdialog::test
