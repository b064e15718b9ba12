// The calls on points without auto-redraw: what is stored and what comes back.
#include <tavix/tavix.h>

#include <limits>
#include <string>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

struct Stored {
  int number = -99;
  std::wstring name = L"untouched";
  double x = -99.0;
  double y = -99.0;
};

class PointCalls : public InstanceTest {
 protected:
  static void ExpectPoint(int key, const Stored& wanted) {
    Stored point = Read(key);
    EXPECT_EQ(wanted.number, point.number) << "key " << key;
    EXPECT_EQ(wanted.name, point.name) << "key " << key;
    EXPECT_EQ(wanted.x, point.x) << "key " << key;
    EXPECT_EQ(wanted.y, point.y) << "key " << key;
  }

  static Stored Read(int key) {
    Stored point;
    CString name;
    EXPECT_EQ(0, Tavix_GetPntNoNam(key, &point.number, &name)) << "key " << key;
    EXPECT_EQ(0, Tavix_GetPntCrd(key, &point.x, &point.y)) << "key " << key;
    point.name = std::wstring(name.GetString(), static_cast<std::size_t>(name.GetLength()));
    return point;
  }

  static void ExpectUnknown(int key) {
    Stored point;
    CString name = L"untouched";
    EXPECT_EQ(-1, Tavix_GetPntNoNam(key, &point.number, &name)) << "key " << key;
    EXPECT_EQ(-1, Tavix_GetPntCrd(key, &point.x, &point.y)) << "key " << key;
    EXPECT_EQ(-99, point.number);
    EXPECT_STREQ(L"untouched", name);
    EXPECT_EQ(-99.0, point.x);
    EXPECT_EQ(-99.0, point.y);
  }
};

TEST_F(PointCalls, KeepWhatWasEntered) {
  const struct {
    int key;
    Stored point;
  } rows[] = {
      {1, {1, L"A", 1.25, -2.5}},
      {0, {0, L"", 0.0, 0.0}},
      {-5, {-7, L"基準点１", -123456.789, 98765.4321}},
      {std::numeric_limits<int>::max(),
       {std::numeric_limits<int>::max(), L"\xD842\xDFB7", 1e300, 1e-300}},
      {std::numeric_limits<int>::min(),
       {std::numeric_limits<int>::min(), std::wstring(500, L'x'), 0.1, 0.2}},
  };
  for (const auto& [key, point] : rows) {
    EXPECT_EQ(0, Tavix_EntPnt(key, point.number, point.name.c_str(), point.x, point.y));
  }
  for (const auto& [key, point] : rows) ExpectPoint(key, point);
}

TEST_F(PointCalls, RefuseAnUnknownKeyAndLeaveOutputsAlone) {
  ExpectUnknown(1);
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  for (const int key : {0, 2, -1}) {
    ExpectUnknown(key);
    EXPECT_EQ(-1, Tavix_ChgPntHid(key, 1));
    EXPECT_EQ(-1, Tavix_ChgPntNoNam(key, 1, L"B"));
    EXPECT_EQ(-1, Tavix_ChgPntCrd(key, 3.0, 4.0));
    EXPECT_EQ(-1, Tavix_DelEntPnt(key));
    ExpectUnknown(key);
  }
  ExpectPoint(1, {1, L"A", 1.0, 2.0});
}

TEST_F(PointCalls, EnteringAKeyAgainReplacesThePoint) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  ASSERT_EQ(0, Tavix_EntPnt(2, 2, L"B", 3.0, 4.0));
  EXPECT_EQ(0, Tavix_EntPnt(1, 9, L"longer than before", 5.0, 6.0));
  ExpectPoint(1, {9, L"longer than before", 5.0, 6.0});
  ExpectPoint(2, {2, L"B", 3.0, 4.0});
  EXPECT_EQ(0, Tavix_DelEntPnt(1));
  ExpectUnknown(1);  // it was there once, not twice
}

TEST_F(PointCalls, ChangeOnlyWhatTheySay) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  EXPECT_EQ(0, Tavix_ChgPntNoNam(1, 5, L"B"));
  ExpectPoint(1, {5, L"B", 1.0, 2.0});
  EXPECT_EQ(0, Tavix_ChgPntCrd(1, 7.0, 8.0));
  ExpectPoint(1, {5, L"B", 7.0, 8.0});
  EXPECT_EQ(0, Tavix_ChgPntHid(1, 999));  // the entry need not exist
  ExpectPoint(1, {5, L"B", 7.0, 8.0});
}

TEST_F(PointCalls, WithoutAutoRedrawAnyDifferenceIsStored) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  EXPECT_EQ(0, Tavix_ChgPntCrd(1, 1.000001, 2.0));
  ExpectPoint(1, {1, L"A", 1.000001, 2.0});
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.000001, 2.000002));
  ExpectPoint(1, {1, L"A", 1.000001, 2.000002});
}

TEST_F(PointCalls, WithAutoRedrawADifferenceBelowAHundredthOfAMillimetreIsNone) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  Tavix_DrwFlg(1);
  for (const double little : {9e-6, -9e-6}) {
    EXPECT_EQ(0, Tavix_ChgPntCrd(1, 1.0 + little, 2.0 + little));
    EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0 + little, 2.0 + little));
    ExpectPoint(1, {1, L"A", 1.0, 2.0});
  }
}

TEST_F(PointCalls, WithAutoRedrawALargerDifferenceOnEitherAxisIsStored) {
  const struct {
    double x;
    double y;
  } rows[] = {{1.00002, 2.0}, {1.0, 2.0}, {1.0, 1.99998}, {0.99997, 2.00002}};
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  ASSERT_EQ(0, Tavix_EntPnt(2, 1, L"A", 1.0, 2.0));
  Tavix_DrwFlg(1);
  for (const auto& [x, y] : rows) {
    Tavix_ChgPntCrd(1, x, y);  // stored although there is no window to draw in
    Tavix_EntPnt(2, 1, L"A", x, y);
    ExpectPoint(1, {1, L"A", x, y});
    ExpectPoint(2, {1, L"A", x, y});
  }
}

TEST_F(PointCalls, WithAutoRedrawADifferentNumberOrNameIsStored) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  Tavix_DrwFlg(1);
  Tavix_ChgPntNoNam(1, 2, L"A");
  ExpectPoint(1, {2, L"A", 1.0, 2.0});
  Tavix_ChgPntNoNam(1, 2, L"a");  // letters of another case are another name
  ExpectPoint(1, {2, L"a", 1.0, 2.0});
  Tavix_EntPnt(1, 2, L"a ", 1.0, 2.0);
  ExpectPoint(1, {2, L"a ", 1.0, 2.0});
}

TEST_F(PointCalls, FindPointsInAnyOrderAmongMany) {
  constexpr int kCount = 200;
  for (int key = 0; key < kCount; ++key) {
    ASSERT_EQ(0, Tavix_EntPnt(key, key, std::to_wstring(key).c_str(), key, -key));
  }
  for (int step = 0; step < kCount; ++step) {
    const int key = step * 77 % kCount;  // far and near, before and behind
    ExpectPoint(key,
                {key, std::to_wstring(key), static_cast<double>(key), -static_cast<double>(key)});
  }
  for (int key = 0; key < kCount; key += 2) EXPECT_EQ(0, Tavix_DelEntPnt(key));
  for (int key = 0; key < kCount; ++key) {
    if (key % 2 == 0) {
      ExpectUnknown(key);
    } else {
      EXPECT_EQ(key, Read(key).number);
    }
  }
}

}  // namespace
}  // namespace tavix::test
