// A redraw that is asked for stays pending until its picture is needed: which calls draw it, which
// leave it, and that it shows what there was when it was asked for.
#include <tavix/tavix.h>

#include <functional>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/redraw_count.h"

namespace tavix::test {
namespace {

class PendingRedraw : public PlotTest {
 protected:
  struct Row {
    const char* what;
    std::function<void()> call;
  };

  void SetUp() override {
    ASSERT_NO_FATAL_FAILURE(MakePlot(120, 90));
    legend_ = AddLegend({10, 12, 0, 0, 1, RGB(255, 0, 0)});
    ASSERT_EQ(0, Enter(1, GroundAt({30, 30}), legend_));
    ASSERT_EQ(0, Enter(2, GroundAt({80, 60}), legend_));
    Tavix_SelLinHan(101);
    ASSERT_EQ(0, Tavix_EntLin(1, 2));
    EnterFigure(1);
    Tavix_SetWak(1, 254, 300, 254, 400);
    Tavix_MvPntStt(legend_);
    Redrawn();
    redraws_.Take();
  }

  static void EnterFigure(int number) {
    EXPECT_EQ(0, Tavix_FigStt(number, 105));
    EXPECT_EQ(0, Tavix_FigMdlLin(-40.0, 3.0 * number, 40.0, -20.0));
    EXPECT_EQ(0, Tavix_FigEnd());
  }

  short legend_ = 0;
  RedrawCount redraws_;
};

TEST_F(PendingRedraw, IsOneForAThousandChanges) {
  Tavix_DrwFlg(1);
  const struct {
    const char* what;
    std::function<int(int)> change;
  } rows[] = {
      {"position", [](int i) { return Tavix_ChgPntCrd(1, 10.0 + i % 7, i % 11); }},
      {"name", [](int i) { return Tavix_ChgPntNoNam(1, i, L"A"); }},
      {"legend", [this](int i) { return Tavix_ChgPntHid(1, i % 2 == 0 ? short{3} : legend_); }},
      {"entered again", [](int i) { return Tavix_EntPnt(2, i, L"B", i % 5, i % 3); }},
      {"line legend", [](int i) { return Tavix_ChgLinHid(1, 2, i % 2 == 0 ? 102 : 101); }},
      {"figure", [](int i) { return EnterFigure(2 + i % 9), 0; }},
      {"figure gone", [](int) { return Tavix_DelFig(1); }},
      {"redraw", [](int) { return Tavix_Drw(1); }},
      {"fit", [](int) { return Tavix_Drw(0); }},
      {"zoom", [](int i) { return Tavix_Zom1(0.0, 0.0, 20.0 + i % 10); }},
      {"pan", [](int i) { return Tavix_Pan(i % 10, i % 7); }},
  };
  for (const auto& [what, change] : rows) {
    for (int i = 0; i < 1000; ++i) ASSERT_EQ(0, change(i)) << what;
    EXPECT_EQ(0, redraws_.Take()) << what;
    EXPECT_TRUE(AwaitsPaint()) << what;
    const Picture shown = Shown();
    EXPECT_EQ(1, redraws_.Take()) << what;
    EXPECT_TRUE(SamePicture(Redrawn(), shown)) << what;
    redraws_.Take();
  }
}

TEST_F(PendingRedraw, IsDrawnBeforeWhatItShowsChanges) {
  short number = 0;
  const Row rows[] = {
      {"a point changes", [] { Tavix_ChgPntCrd(1, 5.0, 5.0); }},
      {"a point comes",
       [this] {
         Enter(9, {0.0, 0.0}, legend_);
       }},
      {"a point goes", [] { Tavix_DelEntPnt(9); }},
      {"a 3-D point comes", [] { Tavix_EntPnt3(1, 1, L"", 1.0, 2.0, 3.0); }},
      {"a 3-D point changes", [] { Tavix_ChgPnt3Hid(1, 2); }},
      {"a 3-D point's name", [] { Tavix_ChgPnt3NoNam(1, 2, L"Z"); }},
      {"a 3-D point goes", [] { Tavix_DelEntPnt3(1); }},
      {"a line comes", [] { Tavix_EntLin(2, 3); }},
      {"a line changes", [] { Tavix_ChgLinHid(1, 2, 103); }},
      {"a line goes", [] { Tavix_DelEntLin(1, 2); }},
      {"all lines go", [] { Tavix_ClrEntLin(); }},
      {"a figure goes", [] { Tavix_DelFig(1); }},
      {"a point legend comes", [&] { Tavix_AddPntHan(2, 1, 0, 9, 9, 0, &number); }},
      {"a point legend changes", [&] { Tavix_ChgPntHan(number, 3, 1, 0, 9, 9, 0); }},
      {"a line legend comes", [&] { Tavix_AddLinHan(101, 0, 0, 0, 1, 0, &number); }},
      {"a line legend changes", [&] { Tavix_ChgLinHan(number, 102, 4, 2, 0, 1, 0); }},
      {"angle", [] { Tavix_SetAng(20); }},
      {"ratio", [] { Tavix_SetTatYok(2, 1); }},
      {"frame scale", [] { Tavix_SetWakScl(100); }},
      {"frame origin", [] { Tavix_SetWakGen(1.0, 2.0); }},
      {"buttons", [] { Tavix_SetBtn(1); }},
      {"side view", [] { Tavix_Dsp3D(1); }},
      {"plan", [] { Tavix_Dsp3D(0); }},
      {"trace", [] { Tavix_VoAdd(1.0, 1.0); }},
      {"trace, last vertex", [] { Tavix_VoDel(); }},
      {"trace, end", [] { Tavix_VoEnd(); }},
      {"all data go", [] { Tavix_DrwClr(); }},
  };
  for (const auto& [what, call] : rows) {
    ASSERT_EQ(0, Tavix_Drw(1));
    EXPECT_EQ(0, redraws_.Take()) << what;
    call();
    EXPECT_EQ(1, redraws_.Take()) << what;
    Shown();
    EXPECT_EQ(0, redraws_.Take()) << what;
  }
}

TEST_F(PendingRedraw, IsLeftByWhatOnlyAsks) {
  int number = 0;
  double x = 0.0;
  double y = 0.0;
  CString text;
  const Row rows[] = {
      {"point", [&] { Tavix_GetPntCrd(1, &x, &y); }},
      {"name", [&] { Tavix_GetPntNoNam(1, &number, &text); }},
      {"memo", [&] { Tavix_EntPntMem(1, L"memo"); }},
      {"in view", [&] { Tavix_ChkCrd(0.0, 0.0, &number); }},
      {"angle", [&] { Tavix_GetAng(&number); }},
      {"frame scale", [&] { Tavix_GetWakScl(&number); }},
      {"scale bar", [] { Tavix_SclBarDsp(1); }},
      {"moved point", [] { Tavix_MvPntMov(3.0, 4.0); }},
      {"one-bit picture", [] { Tavix_GrpStt(40, 40); }},
      {"figure legend", [] { Tavix_FigStt(3, 101); }},
      {"new figure", [] { Tavix_FigMdlLin(0.0, 0.0, 9.0, 9.0); }},
      {"hidden", [] { Tavix_Dsp(0); }},
      {"shown", [] { Tavix_Dsp(1); }},
      {"nothing to paint", [] { ::ValidateRect(Window(), nullptr); }},
  };
  for (const auto& [what, call] : rows) {
    ASSERT_EQ(0, Tavix_Drw(1));
    call();
    EXPECT_EQ(0, redraws_.Take()) << what;
    ::InvalidateRect(Window(), nullptr, TRUE);
    Tavix_Dsp(1);
    Shown();
    EXPECT_EQ(1, redraws_.Take()) << what;
  }
}

TEST_F(PendingRedraw, LeavesOutFiguresThatCameLater) {
  const Picture before = Redrawn();
  ASSERT_EQ(0, Tavix_Drw(1));
  Tavix_FigStt(7, 105);
  Tavix_FigMdlLin(-30.0, -30.0, 30.0, 30.0);
  Tavix_FigMdlCir(0.0, 0.0, 15.0);
  EXPECT_TRUE(SamePicture(before, Shown()));
  EXPECT_NE(before, Redrawn());
}

TEST_F(PendingRedraw, IsNotTheScreensBusinessUntilThePaint) {
  const Picture before = TakeClientPicture(Window());
  ASSERT_EQ(0, Tavix_Pan(20.0, 20.0));
  Tavix_SetAng(0);  // draws it, into the back buffer
  EXPECT_EQ(1, redraws_.Take());
  EXPECT_TRUE(SamePicture(before, TakeClientPicture(Window())));
  EXPECT_NE(before, Shown());
}

TEST_F(PendingRedraw, GoesWithItsWindow) {
  ASSERT_EQ(0, Tavix_Drw(1));
  ASSERT_EQ(0, LinkPlot(60, 60));
  EXPECT_EQ(1, redraws_.Take()) << "the new buffer's background";
  ASSERT_EQ(0, Tavix_Drw(1));
  host_.Destroy();
  Tavix_SetAng(30);
  ASSERT_EQ(0, Tavix_Drw(1));
  EXPECT_EQ(0, Tavix_Del());
}

}  // namespace
}  // namespace tavix::test
