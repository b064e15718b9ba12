// Which point a tap picks.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"

namespace tavix::test {
namespace {

constexpr POINT kMiddle{120, 90};
class NearestPoint : public InteractionTest {
 protected:
  // The key a tap on the middle picks, or 0.
  int Picked() {
    Tap(kMiddle);
    const Commands reports = Reports();
    return reports.empty() ? 0 : static_cast<int>(reports.front().value);
  }
};

TEST_F(NearestPoint, LiesInASquareOfTenPixelsAround) {
  const struct {
    Ground at;
    bool hit;
  } rows[] = {
      {{0.0, 0.0}, true},     {{10.0, 0.0}, true},     {{0.0, -10.0}, true},
      {{10.0, 10.0}, true},   {{-10.0, -10.0}, true},  {{10.001, 0.0}, false},
      {{0.0, 10.001}, false}, {{-10.001, 0.0}, false}, {{10.001, 10.001}, false},
  };
  for (const auto& [at, hit] : rows) {
    Tavix_DrwClr();
    ASSERT_EQ(0, EnterPoint(1, at));
    EXPECT_EQ(hit ? 1 : 0, Picked()) << at.x << ", " << at.y;
  }
}

TEST_F(NearestPoint, IsSoughtFiveMetresAroundAtTwoPixelsAMetre) {
  ASSERT_EQ(0, Tavix_Zom(-45.0, -60.0, 45.0, 60.0));
  ASSERT_EQ(0, EnterPoint(1, {5.0, 5.0}));  // 7.07 m away
  EXPECT_EQ(1, Picked());
  ASSERT_EQ(0, Tavix_ChgPntCrd(1, 5.0, 5.001));
  EXPECT_EQ(0, Picked());
}

TEST_F(NearestPoint, IsSoughtAtTheHorizontalScaleBothWays) {
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));  // 10 m are 20 pixels up and down
  ASSERT_EQ(0, EnterPoint(1, {10.0, 0.0}));
  EXPECT_EQ(1, Picked());
  ASSERT_EQ(0, Tavix_ChgPntCrd(1, 10.001, 0.0));
  EXPECT_EQ(0, Picked());
}

TEST_F(NearestPoint, WinsOverFartherOnesInAnyOrder) {
  ASSERT_EQ(0, EnterPoint(1, {6.0, 0.0}));
  ASSERT_EQ(0, EnterPoint(2, {0.0, -2.0}));
  ASSERT_EQ(0, EnterPoint(3, {3.0, 3.0}));
  EXPECT_EQ(2, Picked());
}

TEST_F(NearestPoint, IsTheEarlierOfTwoEquallyFar) {
  ASSERT_EQ(0, EnterPoint(8, {0.0, 5.0}));
  ASSERT_EQ(0, EnterPoint(7, {0.0, -5.0}));
  ASSERT_EQ(0, EnterPoint(6, {5.0, 0.0}));
  EXPECT_EQ(8, Picked());
}

// Compatibility: the search stops at ten candidates.
TEST_F(NearestPoint, IsOneOfTheFirstTenInReach) {
  ASSERT_EQ(0, EnterPoint(100, {50.0, 0.0}));  // out of reach, and none of the ten
  for (int key = 1; key <= 9; ++key) ASSERT_EQ(0, EnterPoint(key, {9.0, 0.5 * key}));
  ASSERT_EQ(0, EnterPoint(10, {4.0, 0.0}));
  ASSERT_EQ(0, EnterPoint(11, {0.0, 0.0}));
  EXPECT_EQ(10, Picked());
  ASSERT_EQ(0, Tavix_DelEntPnt(3));
  EXPECT_EQ(11, Picked());
}

TEST_F(NearestPoint, MayBeHidden) {
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, -1));
  EXPECT_EQ(1, Picked());
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, AddLegend({4, 0, 0, 0, 1, 0})));
  EXPECT_EQ(1, Picked());
}

TEST_F(NearestPoint, IsFoundInTheTurnedView) {
  ASSERT_EQ(0, Tavix_SetAng(90));  // north points to the right
  ASSERT_EQ(0, EnterPoint(1, {60.0, 0.0}));
  Tap({180, 90});
  EXPECT_EQ((Commands{{kNotifyId, 1}}), Reports());
}

TEST_F(NearestPoint, IsOneOfTheWindowsOwnInstance) {
  ASSERT_EQ(0, EnterPoint(1, {0.0, 0.0}));
  const HWND first = Window();
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, EnterPoint(2, {0.0, 0.0}));
  ::SendMessageW(first, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(120, 90));
  ::SendMessageW(first, WM_LBUTTONUP, 0, MAKELPARAM(120, 90));
  EXPECT_EQ((Commands{{kNotifyId, 1}}), Reports());
}

}  // namespace
}  // namespace tavix::test
