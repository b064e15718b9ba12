// Which calls on points draw. The legend's colour is changed behind the window's back, so that a
// redraw of everything shows.
#include <tavix/tavix.h>

#include <functional>

#include "tests/support/low_byte.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr COLORREF kOld = RGB(0, 0, 0);
constexpr COLORREF kNew = RGB(255, 0, 0);

class PointRedraw : public PlotTest {
 protected:
  void SetUp() override {
    MakePlot(200, 160);
    legend_ = AddLegend(look_);
    ASSERT_EQ(0, Enter(1, GroundAt({50, 60}), legend_, L"A", 1));
    before_ = Redrawn();
    ASSERT_NE(0, CountPixels(before_, 0x000000));
    look_.color = kNew;
    ASSERT_EQ(0, Tavix_ChgPntHan(legend_, look_.kind, look_.width, static_cast<int>(kNew),
                                 look_.size, look_.text_height, look_.label_number));
    Tavix_DrwFlg(1);
  }

  // A window that is redrawn has the point in the new colour.
  static bool ShowsARedraw() { return CountPixels(Shown(), 0xFF0000) > 0; }

  PointLegend look_{4, 10, 0, 0, 1, kOld};
  short legend_ = 0;
  Picture before_;
};

TEST_F(PointRedraw, LegendCallsDoNot) {
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(before_, Shown()));
}

TEST_F(PointRedraw, ANewPointIsDrawnAloneAndAtOnce) {
  EXPECT_EQ(0, Enter(2, GroundAt({120, 90}), legend_));
  EXPECT_FALSE(AwaitsPaint());  // nothing is invalidated
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), {4, 10, 0, 0, 1, kOld}, {50, 60});
  DrawRawPoint(canvas.Dc(), {4, 10, 0, 0, 1, kNew}, {120, 90});
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(SamePicture(canvas.Take(), Shown()));  // the buffer has it too
}

TEST_F(PointRedraw, ValuesThatAreThereAlreadyDoNot) {
  const Ground at = GroundAt({50, 60});
  Tavix_SelPntHan(legend_);
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", at.x, at.y));
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", at.x + 9e-6, at.y - 9e-6));
  EXPECT_EQ(0, Tavix_ChgPntCrd(1, at.x, at.y));
  EXPECT_EQ(0, Tavix_ChgPntCrd(1, at.x - 9e-6, at.y + 9e-6));
  EXPECT_EQ(0, Tavix_ChgPntNoNam(1, 1, L"A"));
  EXPECT_EQ(0, Tavix_ChgPntHid(1, legend_));
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(before_, Shown()));
}

TEST_F(PointRedraw, UnknownKeysAndDeletionsDoNot) {
  EXPECT_EQ(-1, Tavix_ChgPntCrd(9, 0.0, 0.0));
  EXPECT_EQ(-1, Tavix_ChgPntNoNam(9, 0, L""));
  EXPECT_EQ(-1, Tavix_ChgPntHid(9, 1));
  EXPECT_EQ(-1, Tavix_DelEntPnt(9));
  EXPECT_EQ(0, Tavix_DelEntPnt(1));
  EXPECT_EQ(0, Tavix_DrwClr());
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(before_, Shown()));
}

TEST_F(PointRedraw, EachKindOfChangeDoes) {
  const Ground at = GroundAt({50, 60});
  const struct {
    const char* what;
    std::function<int()> change;
  } rows[] = {
      {"number", [&] { return Tavix_ChgPntNoNam(1, 2, L"A"); }},
      {"name", [&] { return Tavix_ChgPntNoNam(1, 2, L"B"); }},
      {"x", [&] { return Tavix_ChgPntCrd(1, at.x + 2e-5, at.y); }},
      {"y", [&] { return Tavix_ChgPntCrd(1, at.x + 2e-5, at.y - 2e-5); }},
      {"entered again: number", [&] { return Tavix_EntPnt(1, 3, L"B", at.x, at.y); }},
      {"entered again: name", [&] { return Tavix_EntPnt(1, 3, L"b", at.x, at.y); }},
      {"entered again: x", [&] { return Tavix_EntPnt(1, 3, L"b", at.x - 2e-5, at.y); }},
      {"entered again: y", [&] { return Tavix_EntPnt(1, 3, L"b", at.x - 2e-5, at.y + 2e-5); }},
  };
  for (const auto& [what, change] : rows) {
    Tavix_ChgPntHan(legend_, 4, 1, static_cast<int>(kOld), 10, 0, 0);
    Redrawn();
    Tavix_ChgPntHan(legend_, 4, 1, static_cast<int>(kNew), 10, 0, 0);
    ASSERT_FALSE(ShowsARedraw()) << what;
    EXPECT_EQ(0, change()) << what;
    EXPECT_TRUE(AwaitsPaint()) << what;
    EXPECT_TRUE(ShowsARedraw()) << what;
  }
}

TEST_F(PointRedraw, AnotherLegendOfThePointDoes) {
  const short other = AddLegend({6, 20, 0, 0, 1, kNew});
  EXPECT_EQ(0, Tavix_ChgPntHid(1, other));
  EXPECT_TRUE(ShowsARedraw());
}

TEST_F(PointRedraw, EnteringThePointUnderAnotherSelectedLegendDoes) {
  const short other = AddLegend({6, 20, 0, 0, 1, kNew});
  EXPECT_EQ(0, Enter(1, GroundAt({50, 60}), other, L"A", 1));
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), {6, 20, 0, 0, 1, kNew}, {50, 60});
  EXPECT_TRUE(SamePicture(canvas.Take(), Shown()));
}

TEST_F(PointRedraw, WithTheFlagOffNothingDoes) {
  for (const int off : {0, 0x100, 0x7FFFFF00}) {  // the low byte is 0
    Tavix_DrwFlg(1);
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_DrwFlg, off));
    EXPECT_EQ(0, Enter(2 + off, GroundAt({120, 90}), legend_));
    EXPECT_EQ(0, Tavix_ChgPntNoNam(1, off, L"C"));
    EXPECT_EQ(0, Tavix_ChgPntHid(1, legend_));
    EXPECT_EQ(0, Tavix_ChgPntCrd(1, 0.0, off));
    EXPECT_FALSE(AwaitsPaint());
    EXPECT_TRUE(SamePicture(before_, Shown()));
  }
}

TEST_F(PointRedraw, TheFlagIsTheInstancesAndOffInANewOne) {
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, LinkPlot(100, 100, {300, 10}));
  Tavix_Dsp(1);
  const Picture empty = Redrawn();
  Tavix_SelPntHan(4);
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 0.0, 0.0));
  EXPECT_TRUE(SamePicture(empty, Shown()));
  Tavix_SetIdx(0);
  EXPECT_EQ(0, Tavix_ChgPntNoNam(1, 7, L"Z"));
  EXPECT_TRUE(ShowsARedraw());
}

}  // namespace
}  // namespace tavix::test
