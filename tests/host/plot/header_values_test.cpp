// The values and rules of the public header that the host is built on, asked of the library.

#include <tavix/tavix.h>

#include <string>
#include <utility>

#include "tests/support/plot_test.h"
#include "view/side_projection.h"

namespace fieldhost {
namespace {

using HeaderValues = tavix::test::PlotTest;

TEST_F(HeaderValues, SideViewProjectsByTheFactors) {
  constexpr int kHeight = 317;
  const tavix::SideProjection projection(kHeight);
  for (const int right : {0, 1, 77, 240, 1003}) {
    for (const int up : {0, 1, 150, 317, 900}) {
      const tavix::ScreenPoint shown = projection.Project({right, kHeight - up});
      const double away = kTavixSideUp * up;
      const double along = kTavixSideRight * right;
      EXPECT_EQ(static_cast<int>(kTavixSideAcross * (away + along)), shown.x);
      EXPECT_EQ(static_cast<int>(kHeight - (kTavixSideRise * (away - along) + kHeight * 0.5)),
                shown.y);
    }
  }
}

TEST_F(HeaderValues, ButtonsTakeTheirColumn) {
  constexpr int kWidth = 300;
  constexpr int kHeight = 200;
  MakePlot(kWidth, kHeight);
  const auto is_visible = [](double east) {
    int visible = -1;
    EXPECT_EQ(0, Tavix_ChkCrd(kHeight / 2.0, east, &visible));
    return visible == 1;
  };
  for (const int column : {0, kTavixButtonColumn}) {
    Tavix_SetBtn(column != 0);
    ASSERT_EQ(0, Tavix_Zom(0, 0, kHeight, kWidth - column));  // a metre a pixel
    EXPECT_TRUE(is_visible(kWidth - column - 1.5));
    EXPECT_FALSE(is_visible(kWidth - column + 1.5));
  }
}

TEST_F(HeaderValues, MemoOfTheGreatestLengthIsKeptAndOneLongerByTwoRefused) {
  ASSERT_EQ(0, Tavix_Crt());
  const std::wstring longest(kTavixLongestMemo, L'x');
  EXPECT_EQ(0, Tavix_EntPntMem(1, longest.c_str()));
  EXPECT_EQ(-1, Tavix_EntPntMem(2, (longest + L"xx").c_str()));
  CString memo;
  Tavix_GetPntMem(1, &memo);
  EXPECT_EQ(kTavixLongestMemo, memo.GetLength());
  Tavix_GetPntMem(2, &memo);
  EXPECT_TRUE(memo.IsEmpty());
}

TEST_F(HeaderValues, BeyondTheLargestKeyMemosAreThoseOfOtherPoints) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_EntPntMem(kTavixLargestLineKey, L"largest"));
  ASSERT_EQ(0, Tavix_EntPntMem(kTavixLargestLineKey + 1, L"beyond"));
  CString memo;
  Tavix_GetPntMem(kTavixLargestLineKey, &memo);
  EXPECT_EQ(CString(L"largest"), memo);
  Tavix_GetPntMem(-kTavixLargestLineKey - 1, &memo);
  EXPECT_EQ(CString(L"beyond"), memo);
}

TEST_F(HeaderValues, BuiltInLegendsBeginWithTheKindOfTheirNumber) {
  ASSERT_EQ(0, Tavix_Crt());
  for (short number = 1; number <= 11; ++number) {
    int kind = 0;
    int rest = 0;
    ASSERT_EQ(0, Tavix_GetPntHan(number, &kind, &rest, &rest, &rest, &rest, &rest));
    EXPECT_EQ(number, kind);
  }
  for (short number = 101; number <= 105; ++number) {
    int kind = 0;
    int rest = 0;
    short prm = 0;
    ASSERT_EQ(0, Tavix_GetLinHan(number, &kind, &prm, &prm, &prm, &rest, &rest));
    EXPECT_EQ(number, kind);
  }
}

TEST_F(HeaderValues, ReportedScaleStaysUntilTheViewIsZoomed) {
  MakePlot(300, 400);
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));
  const auto reported = [] {
    int scale = 0;
    EXPECT_EQ(0, Tavix_GetWakScl(&scale));
    return scale;
  };
  for (const auto& [set, expected] : {std::pair{93, 92}, {500, 500}}) {
    ASSERT_EQ(0, Tavix_SetWakScl(set));
    EXPECT_EQ(expected, reported());
    Tavix_Drw(1);
    Tavix_Pan(12.5, 30);
    Tavix_SetWakGen(7, 8);
    Tavix_Drw(1);
    EXPECT_EQ(expected, reported());
  }
}

TEST_F(HeaderValues, FramePutTwiceOnAPlaceStandsThere) {
  MakePlot(301, 400);
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));
  ASSERT_EQ(0, Tavix_SetWakScl(500));
  constexpr double kPixel = 297 * 0.5 / 380;  // metres: the sheet's height by less than the frame's
  Tavix_Drw(1);
  double x = 0.0;
  double y = 0.0;
  for (const double place : {7.0, -35000.25}) {
    ASSERT_EQ(0, Tavix_SetWakGen(place, 8));
    Tavix_Drw(1);
    ASSERT_EQ(0, Tavix_GetWakGen(&x, &y));
    EXPECT_NEAR(place, x, kPixel);
    EXPECT_NEAR(8, y, kPixel);
    ASSERT_EQ(0, Tavix_SetWakGen(2 * place - x, 16 - y));
    Tavix_Drw(1);
    ASSERT_EQ(0, Tavix_GetWakGen(&x, &y));
    EXPECT_NEAR(place, x, 1e-6);
    EXPECT_NEAR(8, y, 1e-6);
  }
}

}  // namespace
}  // namespace fieldhost
