// Coordinate capture: every tap gives the host a ground coordinate.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"

namespace tavix::test {
namespace {

constexpr int kCommand = 1234;
class CoordinateCapture : public InteractionTest {
 protected:
  static void ExpectCoordinate(double x, double y) {
    double got_x = -1.0;
    double got_y = -1.0;
    EXPECT_EQ(0, Tavix_CrdGet(&got_x, &got_y));
    EXPECT_DOUBLE_EQ(x, got_x);
    EXPECT_DOUBLE_EQ(y, got_y);
  }

  static void ExpectNone() {
    double x = 17.0;
    double y = 18.0;
    EXPECT_EQ(-1, Tavix_CrdGet(&x, &y));
    EXPECT_EQ(17.0, x);  // untouched
    EXPECT_EQ(18.0, y);
  }
};

TEST_F(CoordinateCapture, GivesTheGroundUnderATapOnNothing) {
  EXPECT_EQ(0, Tavix_CrdStt(kCommand));
  Tap({150, 60});
  EXPECT_EQ((Commands{{kCommand, 0}}), Reports());
  ExpectCoordinate(30.0, 30.0);
}

TEST_F(CoordinateCapture, GivesTheExactPlaceOfAPointInReach) {
  ASSERT_EQ(0, EnterPoint(9, {30.123456789, 30.987654321}));
  EXPECT_EQ(0, Tavix_CrdStt(kCommand));
  Tap({158, 52});
  EXPECT_EQ((Commands{{kCommand, 0}}), Reports());  // and no report of the point
  ExpectCoordinate(30.123456789, 30.987654321);
}

TEST_F(CoordinateCapture, GivesTheLatestTap) {
  Tavix_CrdStt(kCommand);
  Tap({150, 60});
  Tap({120, 90});
  EXPECT_EQ((Commands{{kCommand, 0}, {kCommand, 0}}), Reports());
  ExpectCoordinate(0.0, 0.0);
  ExpectCoordinate(0.0, 0.0);  // asking again does no harm
}

TEST_F(CoordinateCapture, HasNothingBeforeATapAndAfterItsEnd) {
  ExpectNone();
  Tavix_CrdStt(kCommand);
  ExpectNone();
  Tap({150, 60});
  EXPECT_EQ(0, Tavix_CrdEnd());
  ExpectNone();
  EXPECT_EQ(0, Tavix_CrdEnd());
}

TEST_F(CoordinateCapture, StartsAnewWithAnotherCommand) {
  Tavix_CrdStt(kCommand);
  Tap({150, 60});
  Reports();
  EXPECT_EQ(0, Tavix_CrdStt(4321));
  ExpectNone();
  Tap({150, 60});
  EXPECT_EQ((Commands{{4321, 0}}), Reports());
}

TEST_F(CoordinateCapture, EndsWithPicking) {
  ASSERT_EQ(0, EnterPoint(9, {0.0, 0.0}));
  Tavix_CrdStt(kCommand);
  Tavix_CrdEnd();
  Tap({120, 90});
  EXPECT_EQ((Commands{{kNotifyId, 9}}), Reports());
  ExpectNone();
}

TEST_F(CoordinateCapture, KeepsTheCoordinateThroughADrag) {
  Tavix_CrdStt(kCommand);
  Tap({150, 60});
  Reports();
  Drag({20, 20}, {30, 20});
  EXPECT_EQ(Commands(), Reports());
  ExpectCoordinate(30.0, 30.0);
}

TEST_F(CoordinateCapture, RestsInTheOtherModesAndTheSideView) {
  Tavix_CrdStt(kCommand);
  Press(kPanButton);
  Tap({150, 60});
  Press(kPanButton);
  Press(kBandZoomButton);
  Tap({150, 60});
  Press(kBandZoomButton);
  Tavix_Dsp3D(1);
  Tap({150, 60});
  Tavix_Dsp3D(0);
  EXPECT_EQ(Commands(), Reports());
  ExpectNone();
  Tap({120, 90});
  EXPECT_EQ((Commands{{kCommand, 0}}), Reports());
}

TEST_F(CoordinateCapture, FollowsTheView) {
  const struct {
    int angle;
    Ground under;  // pixel (150, 60) at 2 pixels a metre around (100, 200)
  } rows[] = {
      {0, {115.0, 215.0}}, {90, {115.0, 185.0}}, {180, {85.0, 185.0}}, {270, {85.0, 215.0}}};
  Tavix_Zom(55.0, 140.0, 145.0, 260.0);
  for (const auto& [angle, under] : rows) {
    Tavix_SetAng(angle);
    const Ground got = Captured({150, 60});
    EXPECT_DOUBLE_EQ(under.x, got.x) << angle;
    EXPECT_DOUBLE_EQ(under.y, got.y) << angle;
  }
}

TEST_F(CoordinateCapture, CountsTheRatioUpAndDown) {
  Tavix_SetTatYok(3, 1);
  const Ground got = Captured({150, 60});
  EXPECT_DOUBLE_EQ(10.0, got.x);
  EXPECT_DOUBLE_EQ(30.0, got.y);
}

TEST_F(CoordinateCapture, BelongsToTheInstance) {
  Tavix_CrdStt(kCommand);
  Tap({150, 60});
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, LinkPlot(100, 100, {300, 10}));
  ExpectNone();
  Tavix_SetIdx(0);
  ExpectCoordinate(30.0, 30.0);
}

}  // namespace
}  // namespace tavix::test
