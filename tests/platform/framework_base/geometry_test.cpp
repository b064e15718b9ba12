// CSize, CPoint, CRect.
#include <afx.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace {

static_assert(sizeof(CSize) == sizeof(SIZE) && sizeof(CPoint) == sizeof(POINT) &&
              sizeof(CRect) == sizeof(RECT));
static_assert(std::is_same_v<decltype(CPoint() - CPoint()), CSize>);
static_assert(std::is_same_v<decltype(CPoint() - POINT()), CSize>);
static_assert(std::is_same_v<decltype(CPoint() - CSize()), CPoint>);
static_assert(std::is_same_v<decltype(CPoint() + CPoint()), CPoint>);
static_assert(std::is_same_v<decltype(CSize() + CPoint()), CPoint>);
static_assert(std::is_same_v<decltype(CSize() + CSize()), CSize>);

TEST(Size, IsMadeFromNumbersAndStructures) {
  EXPECT_EQ(CSize(), CSize(0, 0));
  EXPECT_EQ(CSize(SIZE{3, -4}), CSize(3, -4));
  EXPECT_EQ(CSize(POINT{3, -4}), CSize(3, -4));
  EXPECT_TRUE(CSize(1, 2) != CSize(1, 3));
  EXPECT_TRUE(CSize(1, 2) != CSize(0, 2));
  CSize size;
  size.SetSize(5, 6);
  EXPECT_EQ(size, CSize(5, 6));
}

TEST(Size, AddsAndSubtracts) {
  CSize size(5, 6);
  EXPECT_EQ(size + CSize(1, 2), CSize(6, 8));
  EXPECT_EQ(size - SIZE({1, 2}), CSize(4, 4));
  EXPECT_EQ(-size, CSize(-5, -6));
  EXPECT_EQ(size + POINT({1, 2}), CPoint(6, 8));
  EXPECT_EQ(size - CPoint(1, 2), CPoint(4, 4));
  size += CSize(1, 1);
  EXPECT_EQ(size, CSize(6, 7));
  size -= CSize(2, 3);
  EXPECT_EQ(size, CSize(4, 4));
}

TEST(Point, IsMadeFromNumbersStructuresAndMessageParameters) {
  EXPECT_EQ(CPoint(), CPoint(0, 0));
  EXPECT_EQ(CPoint(POINT{3, -4}), CPoint(3, -4));
  EXPECT_EQ(CPoint(SIZE{3, -4}), CPoint(3, -4));
  EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELPARAM(10, 20))), CPoint(10, 20));
  EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELPARAM(0xFFFF, 0x8000))), CPoint(-1, -32768));
  EXPECT_TRUE(CPoint(1, 2) != CPoint(1, 3));
  EXPECT_TRUE(CPoint(1, 2) != CPoint(0, 2));
}

TEST(Point, MovesAndMeasures) {
  CPoint point(10, 20);
  point.Offset(1, -1);
  EXPECT_EQ(point, CPoint(11, 19));
  point.Offset(CPoint(1, 1));
  point.Offset(CSize(1, 1));
  EXPECT_EQ(point, CPoint(13, 21));
  point.SetPoint(10, 20);
  point += CSize(1, 2);
  point += CPoint(1, 2);
  EXPECT_EQ(point, CPoint(12, 24));
  point -= CSize(1, 2);
  point -= POINT{1, 2};
  EXPECT_EQ(point, CPoint(10, 20));
  EXPECT_EQ(point + CSize(1, 2), CPoint(11, 22));
  EXPECT_EQ(point + POINT({1, 2}), CPoint(11, 22));
  EXPECT_EQ(point - CSize(1, 2), CPoint(9, 18));
  EXPECT_EQ(point - CPoint(1, 2), CSize(9, 18));
  EXPECT_EQ(-point, CPoint(-10, -20));
}

TEST(Rect, IsMadeFromSidesCornersAndStructures) {
  const RECT plain{1, 2, 30, 40};
  const CRect rect(1, 2, 30, 40);
  EXPECT_EQ(CRect(plain), rect);
  EXPECT_EQ(CRect(&plain), rect);
  EXPECT_EQ(CRect(CPoint(1, 2), CSize(29, 38)), rect);
  EXPECT_EQ(CRect(CPoint(1, 2), CPoint(30, 40)), rect);
  EXPECT_EQ(CRect(), CRect(0, 0, 0, 0));
  EXPECT_TRUE(rect.EqualRect(&plain));
  EXPECT_TRUE(rect != CRect(1, 2, 30, 41));
  const RECT* address = rect;
  EXPECT_EQ(address, &rect);
}

TEST(Rect, KnowsItsMeasures) {
  const CRect rect(10, 20, 40, 80);
  EXPECT_EQ(rect.Width(), 30);
  EXPECT_EQ(rect.Height(), 60);
  EXPECT_EQ(rect.Size(), CSize(30, 60));
  EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
  EXPECT_EQ(rect.BottomRight(), CPoint(40, 80));
  EXPECT_EQ(rect.CenterPoint(), CPoint(25, 50));
  EXPECT_EQ(CRect(0, 0, 5, 5).CenterPoint(), CPoint(2, 2));
  EXPECT_EQ(CRect(9, 9, 0, 0).Size(), CSize(-9, -9));
}

TEST(Rect, CornersMayBeWrittenTo) {
  CRect rect(10, 20, 40, 80);
  rect.TopLeft() = CPoint(1, 2);
  rect.BottomRight().Offset(5, 6);
  EXPECT_EQ(rect, CRect(1, 2, 45, 86));
}

TEST(Rect, TellsEmptyFromNull) {
  static constexpr struct {
    RECT rect;
    BOOL empty;
    BOOL null;
  } kRows[] = {
      {{0, 0, 0, 0}, TRUE, TRUE},  {{5, 5, 5, 9}, TRUE, FALSE},  {{5, 5, 9, 5}, TRUE, FALSE},
      {{9, 5, 5, 9}, TRUE, FALSE}, {{0, 0, 1, 1}, FALSE, FALSE}, {{-1, -1, 0, 0}, FALSE, FALSE},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(CRect(row.rect).IsRectEmpty(), row.empty);
    EXPECT_EQ(CRect(row.rect).IsRectNull(), row.null);
  }
}

TEST(Rect, HoldsItsTopLeftAndNotItsBottomRight) {
  const CRect rect(10, 10, 20, 20);
  EXPECT_TRUE(rect.PtInRect(CPoint(10, 10)));
  EXPECT_TRUE(rect.PtInRect(CPoint(19, 19)));
  EXPECT_FALSE(rect.PtInRect(CPoint(20, 19)));
  EXPECT_FALSE(rect.PtInRect(CPoint(19, 20)));
  EXPECT_FALSE(rect.PtInRect(CPoint(9, 10)));
}

TEST(Rect, IsSetMovedAndGrown) {
  CRect rect;
  rect.SetRect(10, 20, 30, 40);
  rect.OffsetRect(1, 2);
  rect.OffsetRect(CPoint(1, 2));
  rect.OffsetRect(CSize(1, 2));
  EXPECT_EQ(rect, CRect(13, 26, 33, 46));
  rect.MoveToX(0);
  rect.MoveToY(5);
  EXPECT_EQ(rect, CRect(0, 5, 20, 25));
  rect.MoveToXY(CPoint(1, 2));
  rect.MoveToXY(3, 4);
  EXPECT_EQ(rect, CRect(3, 4, 23, 24));
  rect.InflateRect(1, 2);
  EXPECT_EQ(rect, CRect(2, 2, 24, 26));
  rect.DeflateRect(1, 2);
  rect.InflateRect(CSize(1, 2));
  rect.DeflateRect(CSize(1, 2));
  EXPECT_EQ(rect, CRect(3, 4, 23, 24));
  rect.InflateRect(1, 2, 3, 4);
  EXPECT_EQ(rect, CRect(2, 2, 26, 28));
  rect.DeflateRect(1, 2, 3, 4);
  EXPECT_EQ(rect, CRect(3, 4, 23, 24));
  const RECT margins{1, 2, 3, 4};
  rect.InflateRect(&margins);
  EXPECT_EQ(rect, CRect(2, 2, 26, 28));
  rect.DeflateRect(&margins);
  EXPECT_EQ(rect, CRect(3, 4, 23, 24));
  const RECT other{1, 2, 3, 4};
  rect.CopyRect(&other);
  EXPECT_EQ(rect, CRect(1, 2, 3, 4));
  rect.SetRect(CPoint(5, 6), CPoint(7, 8));
  EXPECT_EQ(rect, CRect(5, 6, 7, 8));
  rect.SetRectEmpty();
  EXPECT_TRUE(rect.IsRectNull());
}

TEST(Rect, IsNormalised) {
  for (CRect rect : {CRect(1, 2, 3, 4), CRect(3, 2, 1, 4), CRect(1, 4, 3, 2), CRect(3, 4, 1, 2)}) {
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
  }
}

TEST(Rect, IntersectsUnitesAndSubtracts) {
  const CRect a(0, 0, 10, 10);
  const CRect b(5, 5, 20, 20);
  const CRect apart(30, 30, 40, 40);
  CRect result;
  EXPECT_TRUE(result.IntersectRect(a, b));
  EXPECT_EQ(result, CRect(5, 5, 10, 10));
  EXPECT_FALSE(result.IntersectRect(a, apart));
  EXPECT_TRUE(result.IsRectNull());
  EXPECT_TRUE(result.UnionRect(a, b));
  EXPECT_EQ(result, CRect(0, 0, 20, 20));
  EXPECT_TRUE(result.UnionRect(a, CRect()));
  EXPECT_EQ(result, a);
  EXPECT_FALSE(result.UnionRect(CRect(), CRect()));
  EXPECT_TRUE(result.SubtractRect(a, CRect(0, 0, 10, 4)));
  EXPECT_EQ(result, CRect(0, 4, 10, 10));
  EXPECT_TRUE(result.SubtractRect(a, b));
  EXPECT_EQ(result, a);
}

TEST(Rect, HasOperatorsForThese) {
  const CRect rect(10, 20, 30, 40);
  EXPECT_EQ(rect + CPoint(1, 2), CRect(11, 22, 31, 42));
  EXPECT_EQ(rect + CSize(1, 2), CRect(11, 22, 31, 42));
  EXPECT_EQ(rect - CPoint(1, 2), CRect(9, 18, 29, 38));
  EXPECT_EQ(rect - CSize(1, 2), CRect(9, 18, 29, 38));
  const RECT margins{1, 2, 3, 4};
  EXPECT_EQ(rect + &margins, CRect(9, 18, 33, 44));
  EXPECT_EQ(rect - &margins, CRect(11, 22, 27, 36));
  EXPECT_EQ(rect & CRect(0, 0, 15, 25), CRect(10, 20, 15, 25));
  EXPECT_EQ(rect | CRect(0, 0, 15, 25), CRect(0, 0, 30, 40));
}

}  // namespace
