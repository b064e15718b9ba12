// Points in the 3-D side view: feet, raised marks, labels, and the grey ones below the ground.
#include <limits>

#include "tests/support/side_plot_test.h"

namespace tavix::test {
namespace {

constexpr PointLegend kSquare{6, 9, 0, 0, 1, RGB(0, 0, 255)};

class SideViewPoints : public SidePlotTest {
 protected:
  // Enters the points, each with a legend of its own, and compares the whole picture.
  void ExpectAllDrawn(const std::vector<SidePoint>& points) {
    Tavix_DrwClr();
    int key = 1;
    for (const SidePoint& point : points) {
      EnterSide(key++, GroundAt(point.plan), point.raise, AddLegend(point.look), point.label);
    }
    EXPECT_TRUE(SamePicture(SideView(points), Redrawn())) << points.size() << " points";
  }
};

TEST_F(SideViewPoints, StandAboveTheirFeet) {
  ExpectAllDrawn({{{60, 90}, 0, kSquare, L""},
                  {{120, 40}, 30, kSquare, L""},
                  {{180, 150}, 55, kSquare, L""},
                  {{0, 180}, 12, kSquare, L""}});
}

TEST_F(SideViewPoints, HaveEveryKindOfMark) {
  std::vector<SidePoint> points;
  for (int kind = 0; kind <= 12; ++kind) {
    const PointLegend look{kind, 10, 12, 0, 1, RGB(0, 0, 255)};
    points.push_back({{10 + 15 * kind, 140 - 8 * kind}, 6, look, L"点" + std::to_wstring(kind)});
  }
  ExpectAllDrawn(points);
}

TEST_F(SideViewPoints, AreGreyBelowTheBaseBehindTheFrontFace) {
  std::vector<SidePoint> points;
  for (int kind = 1; kind <= 11; ++kind) {
    const PointLegend look{kind, 10, 12, 0, kind % 3 + 1, RGB(255, 0, 255)};
    points.push_back({{15 * kind, 150 - 8 * kind}, -6, look, L"点" + std::to_wstring(kind), true});
  }
  ExpectAllDrawn(points);
}

// Behind is what lies right of or below the line from (0, 180) up to (155, 90): worked by hand.
TEST_F(SideViewPoints, KeepTheirColourBeforeTheFrontFace) {
  const struct {
    POINT plan;
    int raise;
    bool grey;
  } rows[] = {
      {{0, 180}, -1, false},                          // at (0, 91): 90 is not less than 89
      {{0, 180}, 0, false},                           // not below the base
      {{0, 180}, 5, false},  {{100, 60}, -10, true},  // far right: f is 5 or less
      {{0, 60}, -20, true},  {{0, 176}, -80, false}, {{40, 170}, -55, false}, {{40, 170}, -1, true},
  };
  const int height = kHeight;
  for (const auto& [plan, raise, grey] : rows) {
    const POINT foot = OnSide(plan, height);
    const double f = height * 0.8660254 - foot.x;
    const bool behind = f <= 0 || f * 0.5773502717125849 < height - (foot.y - raise);
    const bool hidden = raise < 0 && behind;
    ExpectAllDrawn({{plan, raise, {9, 12, 10, 0, 2, RGB(255, 0, 255)}, L"A1", hidden}});
    EXPECT_EQ(grey, hidden) << plan.x << ", " << plan.y << " raised by " << raise;
  }
}

TEST_F(SideViewPoints, PutTheirColoursBackAfterAGreyOne) {
  const PointLegend look{8, 12, 12, 0, 1, RGB(255, 0, 255)};
  Tavix_DrwClr();
  const short legend = AddLegend(look);
  EnterSide(1, GroundAt({100, 60}), -10.0, legend, L"grey");
  EnterSide(2, GroundAt({60, 120}), 10.0, legend, L"coloured");
  EXPECT_TRUE(SamePicture(
      SideView({{{100, 60}, -10, look, L"grey", true}, {{60, 120}, 10, look, L"coloured"}}),
      Redrawn()));
}

TEST_F(SideViewPoints, OfNoSizeHaveNoFoot) {
  ExpectAllDrawn({{{100, 100}, 10, {6, 0, 12, 0, 1, RGB(255, 0, 0)}, L"label"}});
}

// The feet too, which are drawn before all marks.
TEST_F(SideViewPoints, OfAnUnknownLegendAreLikeThePointBefore) {
  const PointLegend label{6, 0, 12, 0, 1, RGB(0, 0, 255)};
  EnterSide(1, {0.0, 0.0}, 5.0, 9999, L"none");
  EXPECT_TRUE(SamePicture(SideView({}), Redrawn())) << "none is before it";
  EnterSide(2, GroundAt({60, 90}), 10.0, AddLegend(kSquare));
  EnterSide(3, GroundAt({90, 130}), 20.0, 9999, L"C");
  EnterSide(4, GroundAt({120, 60}), 10.0, AddLegend(label), L"D");
  EnterSide(5, GroundAt({150, 100}), 10.0, -1, L"E");
  EXPECT_TRUE(SamePicture(SideView({{{60, 90}, 10, kSquare, L""},
                                    {{90, 130}, 20, kSquare, L""},
                                    {{120, 60}, 10, label, L"D"},
                                    {{150, 100}, 10, label, L"E"}}),
                          Redrawn()));
}

// At the level of the window, and so far to its right that the next pixels of a foot are beyond the
// 32-bit range.
TEST_F(SideViewPoints, OfAnySizeAndFarAwayLeaveNoFootInView) {
  const short legend = AddLegend({4, std::numeric_limits<int>::max(), 0, 0, 1, 0});
  EnterSide(1, {1.8e9 - 90.0, 1.4e9 - 120.0}, 0.0, legend);
  EXPECT_TRUE(SamePicture(SideView({}), Redrawn()));
}

TEST_F(SideViewPoints, ShowTheirNumberOrName) {
  const PointLegend numbered{6, 9, 12, 1, 1, RGB(0, 0, 255)};
  const short legend = AddLegend(numbered);
  EnterSide(1, GroundAt({60, 90}), 3.0, legend, L"name", 42);
  EnterSide(2, GroundAt({100, 90}), 3.0, legend, L"name", 0);
  EnterSide(3, GroundAt({140, 90}), 3.0, legend, L"name", -4);
  EXPECT_TRUE(SamePicture(SideView({{{60, 90}, 3, numbered, L"42"},
                                    {{100, 90}, 3, numbered, L""},
                                    {{140, 90}, 3, numbered, L""}}),
                          Redrawn()));
}

// The foot stays; the raised mark is gone once its middle leaves the picture.
TEST_F(SideViewPoints, RaisedOutOfThePictureLeaveTheirFeet) {
  const POINT plan{100, 90};
  const POINT foot = OnSide(plan, kHeight);
  const struct {
    int raise;
    bool shown;
  } rows[] = {{static_cast<int>(foot.y), true},
              {static_cast<int>(foot.y) + 1, false},
              {static_cast<int>(foot.y) - kHeight, true},
              {static_cast<int>(foot.y) - kHeight - 1, false},
              {1'000'000'000, false}};
  for (const auto& [raise, shown] : rows) {
    Tavix_DrwClr();
    EnterSide(1, GroundAt(plan), raise, AddLegend(kSquare));
    PointLegend look = kSquare;
    if (!shown) look.kind = 0;  // the foot alone
    EXPECT_TRUE(SamePicture(SideView({{plan, shown ? raise : 0, look, L""}}), Redrawn())) << raise;
  }
}

// What the plan does not show, the mark's reach allowed for, the side view does not either.
TEST_F(SideViewPoints, OutsideThePlanAreNotShown) {
  const PointLegend look{6, 8, 0, 0, 1, RGB(0, 0, 255)};
  const struct {
    POINT plan;
    bool shown;
  } rows[] = {{{-8, 120}, true}, {{-9, 120}, false}, {{248, 20}, true}, {{249, 20}, false},
              {{50, 188}, true}, {{50, 189}, false}, {{50, -8}, true},  {{50, -9}, false}};
  for (const auto& [plan, shown] : rows) {
    Tavix_DrwClr();
    EnterSide(1, GroundAt(plan), 2.0, AddLegend(look));
    std::vector<SidePoint> points;
    if (shown) points.push_back({plan, 2, look, L""});
    EXPECT_TRUE(SamePicture(SideView(points), Redrawn())) << plan.x << ", " << plan.y;
  }
}

TEST_F(SideViewPoints, AreDrawnInTheOrderOfEntry) {
  const PointLegend blue{10, 14, 0, 0, 1, RGB(0, 0, 255)};
  const PointLegend green{10, 14, 0, 0, 1, RGB(0, 128, 0)};
  const short legends[] = {AddLegend(blue), AddLegend(green)};
  EnterSide(5, GroundAt({100, 100}), 4.0, legends[0]);
  EnterSide(3, GroundAt({104, 100}), 4.0, legends[1]);
  EnterSide(5, GroundAt({100, 100}), 4.0, legends[0]);  // entered again: keeps its place
  EXPECT_TRUE(
      SamePicture(SideView({{{100, 100}, 4, blue, L""}, {{104, 100}, 4, green, L""}}), Redrawn()));
  EXPECT_EQ(0, Tavix_ChgPnt3Hid(3, legends[0]));
  EXPECT_TRUE(
      SamePicture(SideView({{{100, 100}, 4, blue, L""}, {{104, 100}, 4, blue, L""}}), Redrawn()));
}

}  // namespace
}  // namespace tavix::test
