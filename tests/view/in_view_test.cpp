// Whether positions and circles are in the drawing area.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"

namespace tavix::test {
namespace {

class InView : public InteractionTest {
 protected:
  static int Point(Ground at) {
    int visible = -1;
    EXPECT_EQ(0, Tavix_ChkCrd(at.x, at.y, &visible));
    return visible;
  }

  static int Circle(Ground at, double radius) {
    int visible = -1;
    EXPECT_EQ(0, Tavix_ChkCir(at.x, at.y, radius, &visible));
    return visible;
  }
};

const struct {
  Ground at;
  int visible;
} kPoints[] = {
    {{0.0, 0.0}, 1},     {{-90.0, 120.0}, 1},  // pixel (240, 180): the border counts
    {{90.0, -120.0}, 1},                       // pixel (0, 0)
    {{-91.0, 0.0}, 0},   {{0.0, 121.0}, 0},   {{91.0, 0.0}, 0},
    {{0.0, -121.0}, 0},  {{0.0, -120.9}, 1},  // 0.9 pixels out is pixel 0
    {{90.9, 0.0}, 1},    {{-90.9, 0.0}, 1},   // pixel 180
    {{0.0, 120.9}, 1},   {{1e9, 0.0}, 0},     {{0.0, -1e300}, 0},
};

TEST_F(InView, IsAPointUpToTheBorders) {
  for (const auto& [at, visible] : kPoints) EXPECT_EQ(visible, Point(at)) << at.x << ", " << at.y;
}

TEST_F(InView, IsACircleOfNoSizeWhereItsCentreIs) {
  for (const auto& [at, visible] : kPoints) {
    for (const double radius : {0.000001, 0.0, -50.0}) {
      EXPECT_EQ(visible, Circle(at, radius)) << at.x << ", " << at.y << ", " << radius;
    }
  }
}

TEST_F(InView, IsACircleWithItsFourOutermostPoints) {
  const struct {
    Ground at;
    double radius;
    int visible;
  } rows[] = {
      {{0.0, 0.0}, 90.0, 1},  {{0.0, 0.0}, 91.0, 0},   {{0.0, 115.0}, 5.0, 1},
      {{0.0, 115.0}, 6.0, 0}, {{0.0, -115.0}, 5.0, 1}, {{0.0, -115.0}, 6.0, 0},
      {{85.0, 0.0}, 5.0, 1},  {{85.0, 0.0}, 6.0, 0},   {{-85.0, 0.0}, 5.0, 1},
      {{-85.0, 0.0}, 6.0, 0}, {{200.0, 0.0}, 5.0, 0},  {{0.0, 0.0}, 1e9, 0},
      {{0.0, 120.0}, 0.5, 1},  // pixel 240 still
  };
  for (const auto& [at, radius, visible] : rows) {
    EXPECT_EQ(visible, Circle(at, radius)) << at.x << ", " << at.y << ", " << radius;
  }
}

// Compatibility: the four points turn by the view's angle over the ground, that is by twice the
// angle on the screen: they are its topmost, rightmost and so on at multiples of 45 degrees only.
TEST_F(InView, IsACircleOfFourTurnedPoints) {
  const struct {
    int angle;
    double inside;  // metres
    double outside;
  } rows[] = {{0, 90.0, 91.0},     {45, 89.0, 92.0},    {90, 90.0, 91.0},  {30, 103.0, 106.0},
              {120, 103.0, 106.0}, {300, 103.0, 106.0}, {60, 103.0, 106.0}};
  for (const auto& [angle, inside, outside] : rows) {
    Tavix_SetAng(angle);
    EXPECT_EQ(1, Circle({0.0, 0.0}, inside)) << angle;
    EXPECT_EQ(0, Circle({0.0, 0.0}, outside)) << angle;
  }
}

TEST_F(InView, LeavesOutTheButtonColumn) {
  MakePlotWithButtons(240, 180);
  EXPECT_EQ(1, Point({0.0, 110.0}));  // pixel 220 of a drawing area 220 wide
  EXPECT_EQ(0, Point({0.0, 111.0}));
  Tavix_SetBtn(0);
  EXPECT_EQ(1, Point({0.0, 111.0}));
}

TEST_F(InView, FollowsTheRatio) {
  Tavix_SetTatYok(2, 1);
  EXPECT_EQ(1, Point({45.0, 120.0}));
  EXPECT_EQ(0, Point({46.0, 120.0}));
}

}  // namespace
}  // namespace tavix::test
