// Calls that need a plot window while none is linked: before the instance exists, and after.
#include <tavix/tavix.h>

#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

class WithoutWindow : public LibraryTest {
 protected:
  template <class Expectations>
  static void BeforeAndAfterCreation(Expectations expect) {
    {
      SCOPED_TRACE("no instance");
      expect();
    }
    ASSERT_EQ(0, Tavix_Crt());
    SCOPED_TRACE("no window");
    expect();
  }
};

TEST_F(WithoutWindow, NothingZoomsOrPans) {
  BeforeAndAfterCreation([] {
    EXPECT_EQ(-1, Tavix_Zom(0.0, 0.0, 10.0, 10.0));
    EXPECT_EQ(-1, Tavix_Zom1(0.0, 0.0, 10.0));
    EXPECT_EQ(-1, Tavix_Pan(10.0, 10.0));
    EXPECT_EQ(0, Tavix_Mov());  // does nothing, and needs nothing
  });
}

TEST_F(WithoutWindow, NothingIsTappedOrCaptured) {
  BeforeAndAfterCreation([] {
    int x = 11;
    int y = 12;
    EXPECT_EQ(-1, Tavix_GetLstPicCrd(&x, &y));
    EXPECT_EQ(11, x);
    EXPECT_EQ(12, y);
    Ground at{1.5, 2.5};
    EXPECT_EQ(-1, Tavix_CrdStt(900));
    EXPECT_EQ(-1, Tavix_CrdGet(&at.x, &at.y));
    EXPECT_EQ(-1, Tavix_CrdEnd());
    EXPECT_EQ(1.5, at.x);
    EXPECT_EQ(2.5, at.y);
  });
}

TEST_F(WithoutWindow, ThereIsNoPaperFrame) {
  BeforeAndAfterCreation([] {
    int scale = 11;
    Ground origin{1.5, 2.5};
    EXPECT_EQ(-1, Tavix_SetWak(1, 254, 2970, 254, 2100));
    EXPECT_EQ(-1, Tavix_SetWak(0, 254, 2970, 254, 2100));
    EXPECT_EQ(-1, Tavix_WakDsp(1));
    EXPECT_EQ(-1, Tavix_SetWakScl(500));
    EXPECT_EQ(-1, Tavix_GetWakScl(&scale));
    EXPECT_EQ(11, scale);
    EXPECT_EQ(-1, Tavix_SetWakGen(1.0, 2.0));
    EXPECT_EQ(-1, Tavix_GetWakGen(&origin.x, &origin.y));
    EXPECT_EQ(0.0, origin.x);  // as for a frame that is off: zeros
    EXPECT_EQ(0.0, origin.y);
  });
}

TEST_F(WithoutWindow, ThereIsNoScaleBar) {
  BeforeAndAfterCreation([] {
    EXPECT_EQ(-1, Tavix_SclBarDsp(1));
    EXPECT_EQ(-1, Tavix_SclBarDsp(0));
  });
}

// The view is the instance's: ten pixels each way, one a metre, about (0, 0).
TEST_F(WithoutWindow, WhatIsInViewIsToldAllTheSame) {
  ASSERT_EQ(0, Tavix_Crt());
  int visible = -1;
  EXPECT_EQ(0, Tavix_ChkCrd(0.0, 0.0, &visible));
  EXPECT_EQ(1, visible);
  EXPECT_EQ(0, Tavix_ChkCrd(0.0, 1.0, &visible));
  EXPECT_EQ(0, visible);
  EXPECT_EQ(0, Tavix_ChkCir(5.0, -5.0, 5.0, &visible));
  EXPECT_EQ(1, visible);
  EXPECT_EQ(0, Tavix_ChkCir(5.0, -5.0, 6.0, &visible));
  EXPECT_EQ(0, visible);
}

TEST_F(WithoutWindow, RefusesWhatNeedsAWindow) {
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(nullptr, Tavix_Wnd());
  EXPECT_EQ(-1, Tavix_Dsp(1));
  EXPECT_EQ(-1, Tavix_Dsp(0));
  EXPECT_EQ(-1, Tavix_Drw(0));
  EXPECT_EQ(-1, Tavix_Drw(1));
  EXPECT_EQ(-1, Tavix_SetTatYok(2, 1));
  int tate = 11;
  int yoko = 12;
  EXPECT_EQ(-1, Tavix_GetTatYok(&tate, &yoko));
  EXPECT_EQ(11, tate);
  EXPECT_EQ(12, yoko);
}

TEST_F(WithoutWindow, LeavesTheStoresUsable) {
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(0, Tavix_DrwFlg(1));
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));  // drawn at once, were there a window
  EXPECT_EQ(0, Tavix_SetBtn(0));
  EXPECT_EQ(0, Tavix_Dsp3D(1));
  EXPECT_EQ(0, Tavix_DelEntPnt(1));
}

TEST_F(WithoutWindow, SwitchingTheSideViewTurnsTheViewBack) {
  ASSERT_EQ(0, Tavix_Crt());
  for (const BYTE on : {BYTE{1}, BYTE{0}}) {
    ASSERT_EQ(0, Tavix_SetAng(90));
    EXPECT_EQ(0, Tavix_Dsp3D(on));
    int angle = -1;
    EXPECT_EQ(0, Tavix_GetAng(&angle));
    EXPECT_EQ(0, angle);
  }
}

}  // namespace
}  // namespace tavix::test
