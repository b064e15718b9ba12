#include "view/side_projection.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavix {
namespace {

// One pixel may be lost in the projection, which the way back stretches by up to 2.3, and one more
// in the way back itself.
constexpr int kLostOnTheWay = 3;

TEST(SideProjection, ProjectsAsWorkedByHand) {
  const struct {
    ScreenPoint plan;
    ScreenPoint side;
  } rows[] = {
      {{0, 180}, {0, 90}}, {{0, 0}, {109, 27}}, {{220, 0}, {280, 126}}, {{220, 180}, {171, 189}}};
  for (const auto& [plan, side] : rows) {
    EXPECT_EQ(side, SideProjection(180).Project(plan)) << plan.x << ", " << plan.y;
  }
}

TEST(SideProjection, UnprojectsAsWorkedByHand) {
  const struct {
    ScreenPoint side;
    ScreenPoint plan;
  } rows[] = {
      {{0, 90}, {0, 180}}, {{90, 60}, {24, 63}}, {{170, 150}, {175, 126}}, {{100, 50}, {19, 41}}};
  for (const auto& [side, plan] : rows) {
    EXPECT_EQ(plan, SideProjection(180).Unproject(side)) << side.x << ", " << side.y;
  }
}

// The height of the buffer only shifts the picture: every one undoes its own projection.
TEST(SideProjection, IsUndoneByItsInverse) {
  for (const int height : {1, 99, 180, 241, 1024}) {
    const SideProjection projection(height);
    for (int x = -50; x < 1300; x += 7) {
      for (int y = -50; y < 1100; y += 7) {
        const ScreenPoint back = projection.Unproject(projection.Project({x, y}));
        ASSERT_LE(std::abs(back.x - x), kLostOnTheWay) << x << ", " << y << " of " << height;
        ASSERT_LE(std::abs(back.y - y), kLostOnTheWay) << x << ", " << y << " of " << height;
      }
    }
  }
}

TEST(SideProjection, UndoesItsInverse) {
  for (const int height : {1, 99, 180, 241, 1024}) {
    const SideProjection projection(height);
    for (int x = -50; x < 1300; x += 7) {
      for (int y = -50; y < 1100; y += 7) {
        const ScreenPoint back = projection.Project(projection.Unproject({x, y}));
        ASSERT_LE(std::abs(back.x - x), kLostOnTheWay) << x << ", " << y << " of " << height;
        ASSERT_LE(std::abs(back.y - y), kLostOnTheWay) << x << ", " << y << " of " << height;
      }
    }
  }
}

}  // namespace
}  // namespace tavix
