// The calls on points with a height, without a window.
#include <tavix/tavix.h>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class Points3Calls : public InstanceTest {
 protected:
  static void ExpectPoint(int key, int number, const wchar_t* name, double x, double y, double z) {
    int got_number = 0;
    CString got_name;
    EXPECT_EQ(0, Tavix_GetPnt3NoNam(key, &got_number, &got_name));
    EXPECT_EQ(number, got_number);
    EXPECT_EQ(CString(name), got_name);
    double at[3] = {};
    EXPECT_EQ(0, Tavix_GetPnt3Crd(key, &at[0], &at[1], &at[2]));
    EXPECT_EQ(x, at[0]);
    EXPECT_EQ(y, at[1]);
    EXPECT_EQ(z, at[2]);
  }

  static void ExpectUnknown(int key) {
    int number = 42;
    CString name = L"untouched";
    EXPECT_EQ(-1, Tavix_GetPnt3NoNam(key, &number, &name));
    EXPECT_EQ(42, number);
    EXPECT_EQ(CString(L"untouched"), name);
    double x = 1.5;
    double y = 2.5;
    double z = 3.5;
    EXPECT_EQ(-1, Tavix_GetPnt3Crd(key, &x, &y, &z));
    EXPECT_EQ(1.5, x);
    EXPECT_EQ(2.5, y);
    EXPECT_EQ(3.5, z);
    EXPECT_EQ(-1, Tavix_ChgPnt3Hid(key, 1));
    EXPECT_EQ(-1, Tavix_ChgPnt3NoNam(key, 1, L"N"));
    EXPECT_EQ(-1, Tavix_DelEntPnt3(key));
  }
};

TEST_F(Points3Calls, AreRefusedWithoutAnInstance) {
  Tavix_Del();
  EXPECT_EQ(-1, Tavix_EntPnt3(1, 1, L"A", 0.0, 0.0, 0.0));
  ExpectUnknown(1);
}

TEST_F(Points3Calls, GiveBackWhatWasEntered) {
  EXPECT_EQ(0, Tavix_EntPnt3(70000, -3, L"基準点", 1e7, -2.25, 0.001));
  EXPECT_EQ(0, Tavix_EntPnt3(4464, 4, L"", -1.0, 2.0, -300.5));
  ExpectPoint(70000, -3, L"基準点", 1e7, -2.25, 0.001);  // a point keeps its whole key
  ExpectPoint(4464, 4, L"", -1.0, 2.0, -300.5);
}

TEST_F(Points3Calls, ReplaceEverythingButTheKey) {
  EXPECT_EQ(0, Tavix_EntPnt3(1, 1, L"A", 1.0, 2.0, 3.0));
  EXPECT_EQ(0, Tavix_EntPnt3(2, 2, L"B", 4.0, 5.0, 6.0));
  EXPECT_EQ(0, Tavix_EntPnt3(1, 7, L"C", 1.000001, 2.0, 3.0));  // not compared with the old one
  ExpectPoint(1, 7, L"C", 1.000001, 2.0, 3.0);
  ExpectPoint(2, 2, L"B", 4.0, 5.0, 6.0);
}

TEST_F(Points3Calls, ChangeNumberAndName) {
  ASSERT_EQ(0, Tavix_EntPnt3(1, 1, L"A", 1.0, 2.0, 3.0));
  EXPECT_EQ(0, Tavix_ChgPnt3NoNam(1, 9, L"Z"));
  ExpectPoint(1, 9, L"Z", 1.0, 2.0, 3.0);
  EXPECT_EQ(0, Tavix_ChgPnt3Hid(1, 5));
}

TEST_F(Points3Calls, RemoveAPointOnce) {
  ASSERT_EQ(0, Tavix_EntPnt3(1, 1, L"A", 1.0, 2.0, 3.0));
  ASSERT_EQ(0, Tavix_EntPnt3(2, 2, L"B", 1.0, 2.0, 3.0));
  EXPECT_EQ(0, Tavix_DelEntPnt3(1));
  ExpectUnknown(1);
  ExpectPoint(2, 2, L"B", 1.0, 2.0, 3.0);
}

TEST_F(Points3Calls, AreIndependentOfTheOtherPoints) {
  double x = 0.0;
  double y = 0.0;
  ASSERT_EQ(0, Tavix_EntPnt3(1, 1, L"A", 1.0, 2.0, 3.0));
  EXPECT_EQ(-1, Tavix_GetPntCrd(1, &x, &y));
  ASSERT_EQ(0, Tavix_EntPnt(2, 1, L"A", 1.0, 2.0));
  ExpectUnknown(2);
  ASSERT_EQ(0, Tavix_EntPnt(1, 5, L"P", 8.0, 9.0));
  EXPECT_EQ(0, Tavix_DelEntPnt(1));
  ExpectPoint(1, 1, L"A", 1.0, 2.0, 3.0);
}

TEST_F(Points3Calls, AreIndependentBetweenInstances) {
  ASSERT_EQ(0, Tavix_EntPnt3(1, 1, L"A", 1.0, 2.0, 3.0));
  Tavix_SetIdx(4);
  ASSERT_EQ(0, Tavix_Crt());
  ExpectUnknown(1);
}

TEST_F(Points3Calls, AreForgottenByClearingTheDrawing) {
  ASSERT_EQ(0, Tavix_EntPnt3(1, 1, L"A", 1.0, 2.0, 3.0));
  EXPECT_EQ(0, Tavix_DrwClr());
  ExpectUnknown(1);
}

// None reads the flag: a change of a 2-D point would be refused here, for want of a window.
TEST_F(Points3Calls, NeverRedraw) {
  Tavix_DrwFlg(1);
  EXPECT_EQ(0, Tavix_EntPnt3(1, 1, L"A", 1.0, 2.0, 3.0));
  EXPECT_EQ(0, Tavix_EntPnt3(1, 2, L"B", 4.0, 2.0, 3.0));
  EXPECT_EQ(0, Tavix_ChgPnt3Hid(1, 5));
  EXPECT_EQ(0, Tavix_ChgPnt3NoNam(1, 6, L"C"));
  EXPECT_EQ(0, Tavix_DelEntPnt3(1));
}

}  // namespace
}  // namespace tavix::test
