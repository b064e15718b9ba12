// Calls on an instance that does not exist. Hosts should not make most of them; each is refused and
// writes nothing, and none crashes.
#include <tavix/tavix.h>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

using WithoutInstance = LibraryTest;

TEST_F(WithoutInstance, RefusesWhatNeedsAStore) {
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

TEST_F(WithoutInstance, HasNoWindowAndGetsNone) {
  EXPECT_EQ(nullptr, Tavix_Wnd());
  EXPECT_EQ(-1, Tavix_LnkRct(nullptr, 0, 0, 100, 100, 1));
  EXPECT_EQ(-1, Tavix_Lnk(nullptr, 1, 1));
  EXPECT_EQ(nullptr, Tavix_Wnd());
}

TEST_F(WithoutInstance, TakesFlagsAndSelectionsWithoutACrash) {
  EXPECT_EQ(0, Tavix_SetBtn(0));
  EXPECT_EQ(0, Tavix_DrwFlg(1));
  EXPECT_EQ(0, Tavix_Dsp3D(1));
  EXPECT_EQ(0, Tavix_SelPntHan(3));
  EXPECT_EQ(0, Tavix_SelLinHan(103));
  EXPECT_EQ(0, Tavix_Del());
}

TEST_F(WithoutInstance, AWindowIsNeitherShownNorDrawn) {
  EXPECT_EQ(-1, Tavix_Dsp(1));
  EXPECT_EQ(-1, Tavix_Dsp(0));
  EXPECT_EQ(-1, Tavix_Drw(0));
  EXPECT_EQ(-1, Tavix_Drw(1));
}

TEST_F(WithoutInstance, ThereIsNoRatio) {
  int tate = 11;
  int yoko = 12;
  EXPECT_EQ(-1, Tavix_SetTatYok(2, 1));
  EXPECT_EQ(-1, Tavix_GetTatYok(&tate, &yoko));
  EXPECT_EQ(11, tate);
  EXPECT_EQ(12, yoko);
}

TEST_F(WithoutInstance, NothingIsInView) {
  int visible = 11;
  EXPECT_EQ(-1, Tavix_ChkCrd(0.0, 0.0, &visible));
  EXPECT_EQ(-1, Tavix_ChkCir(0.0, 0.0, 1.0, &visible));
  EXPECT_EQ(11, visible);
}

TEST_F(WithoutInstance, ThereAreNoLineLegends) {
  short number = 17;
  EXPECT_EQ(-1, Tavix_AddLinHan(101, 0, 0, 0, 1, 0, &number));
  EXPECT_EQ(17, number);
  int kind = 11, width = 12, color = 13;
  short prm1 = 14, prm2 = 15, prm3 = 16;
  EXPECT_EQ(-1, Tavix_GetLinHan(101, &kind, &prm1, &prm2, &prm3, &width, &color));
  EXPECT_EQ(11, kind);
  EXPECT_EQ(12, width);
  EXPECT_EQ(13, color);
  EXPECT_EQ(14, prm1);
  EXPECT_EQ(15, prm2);
  EXPECT_EQ(16, prm3);
}

TEST_F(WithoutInstance, ThereAreNoFigures) {
  const double places[] = {0.0, 1.0};
  EXPECT_EQ(-1, Tavix_FigStt(1, 101));
  EXPECT_EQ(-1, Tavix_FigMdlLin(0.0, 0.0, 1.0, 1.0));
  EXPECT_EQ(-1, Tavix_FigMdlCir(0.0, 0.0, 1.0));
  EXPECT_EQ(-1, Tavix_FigMdlPly(2, places, places));
  EXPECT_EQ(-1, Tavix_FigMdlPly(0, nullptr, nullptr));
  EXPECT_EQ(-1, Tavix_FigMdlArc(0.0, 0.0, 6.0, 0.0, 50.0));
  EXPECT_EQ(-1, Tavix_FigMdlClo(0.0, 0.0, 35.0, 5.0, 160.0, 200.0, 140.0));
  EXPECT_EQ(-1, Tavix_FigEnd());
  EXPECT_EQ(-1, Tavix_DelFig(1));
}

TEST_F(WithoutInstance, NoPointMoves) {
  EXPECT_EQ(-1, Tavix_MvPntStt(1));
  EXPECT_EQ(-1, Tavix_MvPntRub(0.0, 0.0));
  EXPECT_EQ(-1, Tavix_MvPntMov(0.0, 0.0));
  EXPECT_EQ(-1, Tavix_MvPntEnd());
}

TEST_F(WithoutInstance, NothingIsTraced) {
  int count = 11;
  double x = 1.5;
  double y = 2.5;
  EXPECT_EQ(-1, Tavix_VoStt());
  EXPECT_EQ(-1, Tavix_VoAdd(0.0, 0.0));
  EXPECT_EQ(-1, Tavix_VoDel());
  EXPECT_EQ(-1, Tavix_VoGet(&count));
  EXPECT_EQ(-1, Tavix_VoLst(&x, &y));
  EXPECT_EQ(-1, Tavix_VoIdx(0, &x, &y));
  EXPECT_EQ(-1, Tavix_VoEnd());
  EXPECT_EQ(11, count);
  EXPECT_EQ(1.5, x);
  EXPECT_EQ(2.5, y);
}

}  // namespace
}  // namespace tavix::test
