// Calls on an instance that does not exist, or that has no window. Hosts should not make most of
// them; none may crash.
#include <tavix/tavix.h>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

using MissingInstance = LibraryTest;
using MissingWindow = LibraryTest;

TEST_F(MissingInstance, RefusesWhatNeedsAStore) {
  int a = 11, b = 12, c = 13, d = 14, e = 15, f = 16;
  short number = 17;
  double x = 1.5, y = 2.5;
  CString name = L"unchanged";
  EXPECT_EQ(-1, Tavix_EntPnt(1, 1, L"A", 0.0, 0.0));
  EXPECT_EQ(-1, Tavix_ChgPntHid(1, 2));
  EXPECT_EQ(-1, Tavix_ChgPntNoNam(1, 1, L"A"));
  EXPECT_EQ(-1, Tavix_ChgPntCrd(1, 0.0, 0.0));
  EXPECT_EQ(-1, Tavix_GetPntNoNam(1, &a, &name));
  EXPECT_EQ(-1, Tavix_GetPntCrd(1, &x, &y));
  EXPECT_EQ(-1, Tavix_DelEntPnt(1));
  EXPECT_EQ(-1, Tavix_AddPntHan(1, 1, 0, 1, 1, 1, &number));
  EXPECT_EQ(-1, Tavix_ChgPntHan(1, 1, 1, 0, 1, 1, 1));
  EXPECT_EQ(-1, Tavix_GetPntHan(1, &a, &b, &c, &d, &e, &f));
  EXPECT_EQ(-1, Tavix_PntHanTtl(1, L"title"));
  EXPECT_EQ(-1, Tavix_ChgLinHan(101, 101, 0, 0, 0, 1, 0));
  EXPECT_EQ(-1, Tavix_SetAng(0));
  EXPECT_EQ(-1, Tavix_GetAng(&a));
  EXPECT_EQ(-1, Tavix_DrwClr());
  EXPECT_EQ(11, a);
  EXPECT_EQ(17, number);
  EXPECT_EQ(1.5, x);
  EXPECT_STREQ(L"unchanged", name);
}

TEST_F(MissingInstance, HasNoWindowAndGetsNone) {
  EXPECT_EQ(nullptr, Tavix_Wnd());
  EXPECT_EQ(-1, Tavix_LnkRct(nullptr, 0, 0, 100, 100, 1));
  EXPECT_EQ(-1, Tavix_Lnk(nullptr, 1, 1));
  EXPECT_EQ(nullptr, Tavix_Wnd());
}

TEST_F(MissingInstance, TakesFlagsAndSelectionsWithoutACrash) {
  EXPECT_EQ(0, Tavix_SetBtn(0));
  EXPECT_EQ(0, Tavix_DrwFlg(1));
  EXPECT_EQ(0, Tavix_Dsp3D(1));
  EXPECT_EQ(0, Tavix_SelPntHan(3));
  EXPECT_EQ(0, Tavix_SelLinHan(103));
  EXPECT_EQ(0, Tavix_Del());
}

TEST_F(MissingWindow, RefusesWhatNeedsAWindow) {
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

TEST_F(MissingWindow, LeavesTheStoresUsable) {
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(0, Tavix_DrwFlg(1));
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));  // drawn at once, were there a window
  EXPECT_EQ(0, Tavix_SetBtn(0));
  EXPECT_EQ(0, Tavix_Dsp3D(1));
  EXPECT_EQ(0, Tavix_DelEntPnt(1));
}

TEST_F(MissingWindow, SwitchingTheSideViewTurnsTheViewBack) {
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
