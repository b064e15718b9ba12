// Auto-redraw while there is no window to redraw: the change stays, and only some calls
// return an error.
#include <tavix/tavix.h>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class RedrawRefused : public LibraryTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
    ASSERT_EQ(0, Tavix_DrwFlg(1));
  }

  static void ExpectPoint(int number, const wchar_t* name, double x, double y) {
    int got_number = 0;
    CString got_name;
    EXPECT_EQ(0, Tavix_GetPntNoNam(1, &got_number, &got_name));
    EXPECT_EQ(number, got_number);
    EXPECT_STREQ(name, got_name);
    double got_x = 0.0;
    double got_y = 0.0;
    EXPECT_EQ(0, Tavix_GetPntCrd(1, &got_x, &got_y));
    EXPECT_EQ(x, got_x);
    EXPECT_EQ(y, got_y);
  }
};

TEST_F(RedrawRefused, IsToldByTheChangesOfAPoint) {
  EXPECT_EQ(-1, Tavix_ChgPntNoNam(1, 2, L"B"));
  ExpectPoint(2, L"B", 1.0, 2.0);
  EXPECT_EQ(-1, Tavix_ChgPntCrd(1, 3.0, 4.0));
  ExpectPoint(2, L"B", 3.0, 4.0);
  EXPECT_EQ(-1, Tavix_EntPnt(1, 5, L"C", 6.0, 7.0));
  ExpectPoint(5, L"C", 6.0, 7.0);
  EXPECT_EQ(-1, Tavix_ChgPntHid(1, 7));
}

TEST_F(RedrawRefused, IsNoneWhereNothingChanges) {
  EXPECT_EQ(0, Tavix_ChgPntNoNam(1, 1, L"A"));
  EXPECT_EQ(0, Tavix_ChgPntCrd(1, 1.0, 2.0));
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  EXPECT_EQ(-1, Tavix_ChgPntHid(1, 7));
  EXPECT_EQ(0, Tavix_ChgPntHid(1, 7)) << "the refused redraw has left the change";
}

TEST_F(RedrawRefused, IsNoneForAPointThatIsNewOrGoes) {
  EXPECT_EQ(0, Tavix_EntPnt(2, 1, L"A", 1.0, 2.0));
  EXPECT_EQ(0, Tavix_DelEntPnt(2));
}

TEST_F(RedrawRefused, IsNotToldByFigures) {
  ASSERT_EQ(0, Tavix_FigStt(1, 101));
  ASSERT_EQ(0, Tavix_FigMdlLin(0.0, 0.0, 1.0, 1.0));
  EXPECT_EQ(0, Tavix_FigEnd());
  EXPECT_EQ(0, Tavix_DelFig(1));
}

}  // namespace
}  // namespace tavix::test
