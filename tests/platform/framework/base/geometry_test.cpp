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
  EXPECT_EQ(CSize(5, 6), size);
}

TEST(Size, AddsAndSubtracts) {
  CSize size(5, 6);
  EXPECT_EQ(CSize(6, 8), size + CSize(1, 2));
  EXPECT_EQ(CSize(4, 4), size - SIZE({1, 2}));
  EXPECT_EQ(CSize(-5, -6), -size);
  EXPECT_EQ(CPoint(6, 8), size + POINT({1, 2}));
  EXPECT_EQ(CPoint(4, 4), size - CPoint(1, 2));
  size += CSize(1, 1);
  EXPECT_EQ(CSize(6, 7), size);
  size -= CSize(2, 3);
  EXPECT_EQ(CSize(4, 4), size);
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
  EXPECT_EQ(CPoint(11, 19), point);
  point.Offset(CPoint(1, 1));
  point.Offset(CSize(1, 1));
  EXPECT_EQ(CPoint(13, 21), point);
  point.SetPoint(10, 20);
  point += CSize(1, 2);
  point += CPoint(1, 2);
  EXPECT_EQ(CPoint(12, 24), point);
  point -= CSize(1, 2);
  point -= POINT{1, 2};
  EXPECT_EQ(CPoint(10, 20), point);
  EXPECT_EQ(CPoint(11, 22), point + CSize(1, 2));
  EXPECT_EQ(CPoint(11, 22), point + POINT({1, 2}));
  EXPECT_EQ(CPoint(9, 18), point - CSize(1, 2));
  EXPECT_EQ(CSize(9, 18), point - CPoint(1, 2));
  EXPECT_EQ(CPoint(-10, -20), -point);
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
  EXPECT_EQ(&rect, address);
}

TEST(Rect, KnowsItsMeasures) {
  const CRect rect(10, 20, 40, 80);
  EXPECT_EQ(30, rect.Width());
  EXPECT_EQ(60, rect.Height());
  EXPECT_EQ(CSize(30, 60), rect.Size());
  EXPECT_EQ(CPoint(10, 20), rect.TopLeft());
  EXPECT_EQ(CPoint(40, 80), rect.BottomRight());
  EXPECT_EQ(CPoint(25, 50), rect.CenterPoint());
  EXPECT_EQ(CPoint(2, 2), CRect(0, 0, 5, 5).CenterPoint());
  EXPECT_EQ(CSize(-9, -9), CRect(9, 9, 0, 0).Size());
}

TEST(Rect, CornersMayBeWrittenTo) {
  CRect rect(10, 20, 40, 80);
  rect.TopLeft() = CPoint(1, 2);
  rect.BottomRight().Offset(5, 6);
  EXPECT_EQ(CRect(1, 2, 45, 86), rect);
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
    EXPECT_EQ(row.empty, CRect(row.rect).IsRectEmpty());
    EXPECT_EQ(row.null, CRect(row.rect).IsRectNull());
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
  EXPECT_EQ(CRect(13, 26, 33, 46), rect);
  rect.MoveToX(0);
  rect.MoveToY(5);
  EXPECT_EQ(CRect(0, 5, 20, 25), rect);
  rect.MoveToXY(CPoint(1, 2));
  rect.MoveToXY(3, 4);
  EXPECT_EQ(CRect(3, 4, 23, 24), rect);
  rect.InflateRect(1, 2);
  EXPECT_EQ(CRect(2, 2, 24, 26), rect);
  rect.DeflateRect(1, 2);
  rect.InflateRect(CSize(1, 2));
  rect.DeflateRect(CSize(1, 2));
  EXPECT_EQ(CRect(3, 4, 23, 24), rect);
  rect.InflateRect(1, 2, 3, 4);
  EXPECT_EQ(CRect(2, 2, 26, 28), rect);
  rect.DeflateRect(1, 2, 3, 4);
  EXPECT_EQ(CRect(3, 4, 23, 24), rect);
  const RECT margins{1, 2, 3, 4};
  rect.InflateRect(&margins);
  EXPECT_EQ(CRect(2, 2, 26, 28), rect);
  rect.DeflateRect(&margins);
  EXPECT_EQ(CRect(3, 4, 23, 24), rect);
  const RECT other{1, 2, 3, 4};
  rect.CopyRect(&other);
  EXPECT_EQ(CRect(1, 2, 3, 4), rect);
  rect.SetRect(CPoint(5, 6), CPoint(7, 8));
  EXPECT_EQ(CRect(5, 6, 7, 8), rect);
  rect.SetRectEmpty();
  EXPECT_TRUE(rect.IsRectNull());
}

TEST(Rect, IsNormalised) {
  for (CRect rect : {CRect(1, 2, 3, 4), CRect(3, 2, 1, 4), CRect(1, 4, 3, 2), CRect(3, 4, 1, 2)}) {
    rect.NormalizeRect();
    EXPECT_EQ(CRect(1, 2, 3, 4), rect);
  }
}

TEST(Rect, IntersectsUnitesAndSubtracts) {
  const CRect a(0, 0, 10, 10);
  const CRect b(5, 5, 20, 20);
  const CRect apart(30, 30, 40, 40);
  CRect result;
  EXPECT_TRUE(result.IntersectRect(a, b));
  EXPECT_EQ(CRect(5, 5, 10, 10), result);
  EXPECT_FALSE(result.IntersectRect(a, apart));
  EXPECT_TRUE(result.IsRectNull());
  EXPECT_TRUE(result.UnionRect(a, b));
  EXPECT_EQ(CRect(0, 0, 20, 20), result);
  EXPECT_TRUE(result.UnionRect(a, CRect()));
  EXPECT_EQ(a, result);
  EXPECT_FALSE(result.UnionRect(CRect(), CRect()));
  EXPECT_TRUE(result.SubtractRect(a, CRect(0, 0, 10, 4)));
  EXPECT_EQ(CRect(0, 4, 10, 10), result);
  EXPECT_TRUE(result.SubtractRect(a, b));
  EXPECT_EQ(a, result);
}

TEST(Rect, HasOperatorsForThese) {
  const CRect rect(10, 20, 30, 40);
  EXPECT_EQ(CRect(11, 22, 31, 42), rect + CPoint(1, 2));
  EXPECT_EQ(CRect(11, 22, 31, 42), rect + CSize(1, 2));
  EXPECT_EQ(CRect(9, 18, 29, 38), rect - CPoint(1, 2));
  EXPECT_EQ(CRect(9, 18, 29, 38), rect - CSize(1, 2));
  const RECT margins{1, 2, 3, 4};
  EXPECT_EQ(CRect(9, 18, 33, 44), rect + &margins);
  EXPECT_EQ(CRect(11, 22, 27, 36), rect - &margins);
  EXPECT_EQ(CRect(10, 20, 15, 25), rect & CRect(0, 0, 15, 25));
  EXPECT_EQ(CRect(0, 0, 30, 40), rect | CRect(0, 0, 15, 25));
}

}  // namespace
