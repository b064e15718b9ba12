// What the one-bit picture shows, against the same drawn by raw calls.
#include <tavix/tavix.h>

#include <string>

#include "tests/draw/group/group_test.h"
#include "tests/draw/group/raw_ink_picture.h"
#include "tests/support/picture_compare.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kCyan = RGB(0, 255, 255);
constexpr COLORREF kLightGrey = RGB(254, 254, 254);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class GroupPictureOf : public GroupTest {};

// The look of `legend` in ink.
PointLegend InInk(PointLegend legend) {
  if (legend.color != kWhite) legend.color = 0;
  return legend;
}

TEST_F(GroupPictureOf, NothingIsWhiteButForTheArrow) {
  const struct {
    int height;
    int width;
  } rows[] = {{180, 240}, {200, 200}, {140, 300}, {300, 141}, {131, 32}, {90, 33}, {1, 1}};
  for (const auto& row : rows) {
    const RawInkPicture canvas(row.height, row.width);
    canvas.Arrow({70, 70});
    EXPECT_TRUE(SamePicture(canvas.Take(), Build(row.height, row.width)))
        << row.height << " by " << row.width;
  }
}

TEST_F(GroupPictureOf, EveryMarkAndColourIsInkButWhite) {
  for (const COLORREF color : {COLORREF{0}, kYellow, kCyan, kLightGrey, RGB(255, 0, 0), kWhite}) {
    Tavix_DrwClr();
    const RawInkPicture canvas(kHeight, kWidth);
    for (int kind = 2; kind <= 11; ++kind) {
      const PointLegend look{kind, 13, 12, kind % 2, 1 + kind % 3, color};
      const POINT at{20 + 20 * kind, 30 + 12 * (kind % 5)};
      ASSERT_EQ(0, Enter(kind, GroundAt(at), AddLegend(look), L"点Ab", 57));
      DrawRawPoint(canvas.Dc(), InInk(look), at, kind % 2 ? L"57" : L"点Ab");
    }
    canvas.Arrow({kWidth - 70, kHeight - 70});
    const Picture picture = Build(kHeight, kWidth);
    EXPECT_TRUE(SamePicture(canvas.Take(), picture)) << std::hex << color;
  }
}

TEST_F(GroupPictureOf, AWhiteMarkHidesWhatIsUnderIt) {
  const PointLegend square{10, 30, 0, 0, 1, kYellow};
  const PointLegend hole{8, 15, 0, 0, 1, kWhite};
  ASSERT_EQ(0, Enter(1, GroundAt({180, 120}), AddLegend(square)));
  ASSERT_EQ(0, Enter(2, GroundAt({180, 120}), AddLegend(hole)));
  const RawInkPicture canvas(kHeight, kWidth);
  DrawRawPoint(canvas.Dc(), InInk(square), {180, 120});
  DrawRawPoint(canvas.Dc(), hole, {180, 120});
  canvas.Arrow({70, 70});
  EXPECT_TRUE(SamePicture(canvas.Take(), Build(kHeight, kWidth)));
}

TEST_F(GroupPictureOf, LinesAndFiguresAreInkButWhite) {
  const PointLegend hidden{4, 0, 0, 0, 1, 0};
  const short point = AddLegend(hidden);
  ASSERT_EQ(0, Enter(1, GroundAt({150, 20}), point));
  ASSERT_EQ(0, Enter(2, GroundAt({230, 170}), point));
  ASSERT_EQ(0, Enter(3, GroundAt({150, 170}), point));
  short yellow = 0;
  short white = 0;
  ASSERT_EQ(0, Tavix_AddLinHan(101, 0, 0, 0, 1, static_cast<int>(kYellow), &yellow));
  ASSERT_EQ(0, Tavix_AddLinHan(101, 0, 0, 0, 3, static_cast<int>(kWhite), &white));
  Tavix_SelLinHan(yellow);
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  Tavix_SelLinHan(white);
  ASSERT_EQ(0, Tavix_EntLin(3, 2));
  const Ground from = GroundAt({140, 100});
  const Ground to = GroundAt({238, 60});
  ASSERT_EQ(0, Tavix_FigStt(1, yellow));
  ASSERT_EQ(0, Tavix_FigMdlLin(from.x, from.y, to.x, to.y));
  ASSERT_EQ(0, Tavix_FigEnd());

  const RawInkPicture canvas(kHeight, kWidth);
  canvas.Line({140, 100}, {238, 60});
  canvas.Line({150, 20}, {230, 170});
  {
    const RawSelection wide(canvas.Dc(), ::CreatePen(PS_SOLID, 3, kWhite));
    ::MoveToEx(canvas.Dc(), 150, 170, nullptr);
    ::LineTo(canvas.Dc(), 230, 170);
  }
  canvas.Arrow({70, 70});
  EXPECT_TRUE(SamePicture(canvas.Take(), Build(kHeight, kWidth)));
}

TEST_F(GroupPictureOf, ACircleWithoutALegendEntryIsInkAndHollow) {
  const Ground centre = GroundAt({180, 120});
  ASSERT_EQ(0, Tavix_FigStt(1, -1));
  ASSERT_EQ(0, Tavix_FigMdlCir(centre.x, centre.y, 40.0));
  ASSERT_EQ(0, Tavix_FigMdlCir(centre.x, centre.y - 5.0, 40.0));
  ASSERT_EQ(0, Tavix_FigEnd());
  const RawInkPicture canvas(kHeight, kWidth);
  ::Ellipse(canvas.Dc(), 220, 160, 140, 80);
  ::Ellipse(canvas.Dc(), 215, 160, 135, 80);
  canvas.Arrow({70, 70});
  EXPECT_TRUE(SamePicture(canvas.Take(), Build(kHeight, kWidth)));
}

TEST_F(GroupPictureOf, TheGroundWidthOfTheWindowFillsThePicture) {
  const PointLegend cross{4, 9, 0, 0, 1, kCyan};
  ASSERT_EQ(0, Enter(1, {-30.0, 50.0}, AddLegend(cross)));
  const struct {
    int height;
    int width;
    POINT at;
  } rows[] = {
      {180, 480, {340, 150}},  // twice as wide: twice the scale
      {300, 480, {340, 210}}, {180, 120, {85, 105}},
      {91, 241, {170, 75}},  // halves are cut off: 120 + 50 * 241 / 240, 45 + 30 * 241 / 240
      {180, 240, {170, 120}},
  };
  for (const auto& row : rows) {
    const RawInkPicture canvas(row.height, row.width);
    DrawRawPoint(canvas.Dc(), InInk(cross), row.at);
    canvas.Arrow({70, 70});
    EXPECT_TRUE(SamePicture(canvas.Take(), Build(row.height, row.width)))
        << row.height << " by " << row.width;
  }
}

TEST_F(GroupPictureOf, TurnsWithTheView) {
  const PointLegend square{6, 9, 0, 0, 1, kYellow};
  ASSERT_EQ(0, Enter(1, {20.0, 80.0}, AddLegend(square)));
  const struct {
    int degrees;
    POINT at;  // (120, 90) and 80, -20 turned
  } rows[] = {
      {0, {200, 70}}, {90, {140, 170}}, {180, {40, 110}}, {270, {100, 10}}, {30, {199, 112}}};
  for (const auto& row : rows) {
    ASSERT_EQ(0, Tavix_SetAng(row.degrees));
    const RawInkPicture canvas(kHeight, kWidth);
    DrawRawPoint(canvas.Dc(), InInk(square), row.at);
    // 270 degrees: the mark stands in the first square's columns 96 to 104, and in its rows.
    canvas.Arrow(
        row.degrees == 270 || row.degrees == 180 ? POINT{kWidth - 70, kHeight - 70} : POINT{70, 70},
        row.degrees);
    EXPECT_TRUE(SamePicture(canvas.Take(), Build(kHeight, kWidth))) << row.degrees;
  }
}

TEST_F(GroupPictureOf, HasTheVerticalRatioOfTheView) {
  const PointLegend square{6, 9, 0, 0, 1, kYellow};
  ASSERT_EQ(0, Enter(1, {-20.0, 50.0}, AddLegend(square)));
  ASSERT_EQ(0, Tavix_SetTatYok(3, 1));
  const RawInkPicture canvas(kHeight, kWidth);
  DrawRawPoint(canvas.Dc(), InInk(square), {170, 150});
  canvas.Arrow({70, 70});
  EXPECT_TRUE(SamePicture(canvas.Take(), Build(kHeight, kWidth)));
}

TEST_F(GroupPictureOf, OneSheetIsThePicturesWidthInFrameMode) {
  const PointLegend square{6, 9, 0, 0, 1, kYellow};
  ASSERT_EQ(0, Enter(1, {-20.0, 30.0}, AddLegend(square)));
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));  // 0.297 m high, 0.21 m wide
  const int height = 300;
  const int width = 250;
  // The sheet's height stands for 170 m of ground, its width for 170 * 210 / 297.
  const double scale = width / (170.0 * 210 / 297);
  const RawInkPicture canvas(height, width);
  DrawRawPoint(canvas.Dc(), InInk(square),
               {static_cast<LONG>(125 + 30 * scale), static_cast<LONG>(150 + 20 * scale)});
  canvas.Arrow({70, 70});
  EXPECT_TRUE(SamePicture(canvas.Take(), Build(height, width)));
}

TEST_F(GroupPictureOf, ItsScaleHasTheCapOfEveryView) {
  const PointLegend square{6, 9, 0, 0, 1, kYellow};
  ASSERT_EQ(0, Enter(1, {0.0, 0.00048828125}, AddLegend(square)));
  ASSERT_EQ(0, Tavix_Zom(-0.0004, -0.0005, 0.0004, 0.0005));  // cut to 100000 pixels a metre
  const RawInkPicture canvas(kHeight, 480);
  DrawRawPoint(canvas.Dc(), InInk(square), {240 + 48, 90});
  canvas.Arrow({70, 70});
  EXPECT_TRUE(SamePicture(canvas.Take(), Build(kHeight, 480)));
}

TEST_F(GroupPictureOf, LeavesTheWindowAsItIs) {
  const PointLegend square{6, 9, 10, 0, 1, kYellow};
  ASSERT_EQ(0, Enter(1, {-20.0, 50.0}, AddLegend(square), L"A"));
  ASSERT_EQ(0, Tavix_SetAng(20));
  const Picture before = Redrawn();
  Build(300, 400);
  EXPECT_TRUE(SamePicture(before, Shown()));
  EXPECT_TRUE(SamePicture(before, Redrawn()));
  EXPECT_EQ(0, Tavix_GrpEnd());
  EXPECT_TRUE(SamePicture(before, Redrawn()));
}

TEST_F(GroupPictureOf, ShowsThePlanInTheSideViewToo) {
  const PointLegend square{6, 9, 0, 0, 1, kYellow};
  ASSERT_EQ(0, Enter(1, {-20.0, 50.0}, AddLegend(square)));
  const Picture plan = Build(kHeight, kWidth);
  ASSERT_EQ(0, Tavix_Dsp3D(1));
  EXPECT_TRUE(SamePicture(plan, Build(kHeight, kWidth)));
}

}  // namespace
}  // namespace tavix::test
