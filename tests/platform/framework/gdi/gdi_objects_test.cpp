// Drawing objects: who owns a handle, and which object FromHandle returns for it.

#include <gtest/gtest.h>

#include "framework/scoped_select.h"
#include "tests/platform/framework/test_windows.h"

namespace {

bool IsAlive(HGDIOBJ handle) { return ::GetObjectType(handle) != 0; }

template <class T>
struct Maker;
template <>
struct Maker<CPen> {
  static constexpr DWORD kType = OBJ_PEN;
  static BOOL Make(CPen& pen) { return pen.CreatePen(PS_SOLID, 3, RGB(1, 2, 3)); }
};
template <>
struct Maker<CBrush> {
  static constexpr DWORD kType = OBJ_BRUSH;
  static BOOL Make(CBrush& brush) { return brush.CreateSolidBrush(RGB(4, 5, 6)); }
};
template <>
struct Maker<CFont> {
  static constexpr DWORD kType = OBJ_FONT;
  static BOOL Make(CFont& font) { return font.CreatePointFont(100, L"Tahoma"); }
};
template <>
struct Maker<CBitmap> {
  static constexpr DWORD kType = OBJ_BITMAP;
  static BOOL Make(CBitmap& bitmap) { return bitmap.CreateBitmap(4, 3, 1, 32, nullptr); }
};

template <class T>
class Selectable : public testing::Test {};
using SelectableTypes = testing::Types<CPen, CBrush, CFont, CBitmap>;
TYPED_TEST_SUITE(Selectable, SelectableTypes);

TYPED_TEST(Selectable, HandleDiesWithItsOwner) {
  HGDIOBJ handle = nullptr;
  {
    TypeParam object;
    ASSERT_TRUE(Maker<TypeParam>::Make(object));
    handle = object.m_hObject;
    EXPECT_EQ(Maker<TypeParam>::kType, object.GetObjectType());
    EXPECT_EQ(&object, CGdiObject::FromHandle(handle));
  }
  EXPECT_FALSE(IsAlive(handle));
}

TYPED_TEST(Selectable, DetachedHandleOutlivesTheObject) {
  HGDIOBJ handle = nullptr;
  {
    TypeParam object;
    ASSERT_TRUE(Maker<TypeParam>::Make(object));
    handle = object.Detach();
    EXPECT_EQ(nullptr, object.m_hObject);
    EXPECT_FALSE(object.DeleteObject());
  }
  EXPECT_TRUE(IsAlive(handle));
  TypeParam again;
  EXPECT_TRUE(again.Attach(handle));
  EXPECT_TRUE(again.DeleteObject());
  EXPECT_FALSE(IsAlive(handle));
  EXPECT_FALSE(again.Attach(nullptr));
}

TYPED_TEST(Selectable, SelectReturnsTheObjectBefore) {
  CDC dc;
  ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
  TypeParam first, second;
  ASSERT_TRUE(Maker<TypeParam>::Make(first));
  ASSERT_TRUE(Maker<TypeParam>::Make(second));
  TypeParam* original = dc.SelectObject(&first);
  ASSERT_NE(nullptr, original);
  EXPECT_EQ(&first, dc.SelectObject(&second));
  EXPECT_EQ(&second, dc.SelectObject(original));
  EXPECT_TRUE(first.DeleteObject());
  EXPECT_TRUE(second.DeleteObject());
}

TYPED_TEST(Selectable, TemporaryObjectIsOneForEachHandleAndOwnsNothing) {
  CDC dc;
  ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
  TypeParam object;
  ASSERT_TRUE(Maker<TypeParam>::Make(object));
  const HGDIOBJ original = ::GetCurrentObject(dc, Maker<TypeParam>::kType);
  TypeParam* temporary = dc.SelectObject(&object);
  EXPECT_EQ(original, temporary->m_hObject);
  dc.SelectObject(temporary);
  EXPECT_EQ(temporary, dc.SelectObject(&object)) << "the same object for the same handle";
  dc.SelectObject(temporary);
}

TYPED_TEST(Selectable, DeletedWhileSelectedIsNoCrash) {
  CDC dc;
  ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
  {
    TypeParam object;
    ASSERT_TRUE(Maker<TypeParam>::Make(object));
    dc.SelectObject(&object);
  }
  dc.Rectangle(0, 0, 5, 5);
  TypeParam next;
  ASSERT_TRUE(Maker<TypeParam>::Make(next));
  TypeParam* before = dc.SelectObject(&next);
  dc.SelectObject(before);
}

TYPED_TEST(Selectable, ScopedSelectPutsTheOldOneBack) {
  CDC dc;
  ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
  const HGDIOBJ original = ::GetCurrentObject(dc, Maker<TypeParam>::kType);
  TypeParam outer, inner;
  ASSERT_TRUE(Maker<TypeParam>::Make(outer));
  ASSERT_TRUE(Maker<TypeParam>::Make(inner));
  {
    const CScopedSelect a(dc, outer);
    {
      const CScopedSelect b(dc, inner);
      EXPECT_EQ(inner.m_hObject, ::GetCurrentObject(dc, Maker<TypeParam>::kType));
    }
    EXPECT_EQ(outer.m_hObject, ::GetCurrentObject(dc, Maker<TypeParam>::kType));
  }
  EXPECT_EQ(original, ::GetCurrentObject(dc, Maker<TypeParam>::kType));
}

TEST(GdiObjects, DescribeThemselves) {
  CPen pen(PS_DASH, 1, RGB(9, 8, 7));
  LOGPEN logPen;
  ASSERT_NE(0, pen.GetLogPen(&logPen));
  EXPECT_EQ(RGB(9, 8, 7), logPen.lopnColor);
  EXPECT_EQ(UINT{PS_DASH}, logPen.lopnStyle);

  CBrush brush(RGB(1, 1, 2));
  LOGBRUSH logBrush;
  ASSERT_NE(0, brush.GetLogBrush(&logBrush));
  EXPECT_EQ(RGB(1, 1, 2), logBrush.lbColor);

  LOGFONTW wanted = {};
  wanted.lfHeight = -17;
  wanted.lfWeight = FW_BOLD;
  ::lstrcpyW(wanted.lfFaceName, L"ＭＳ ゴシック");
  CFont font;
  ASSERT_TRUE(font.CreateFontIndirect(&wanted));
  LOGFONTW got;
  ASSERT_NE(0, font.GetLogFont(&got));
  EXPECT_EQ(-17, got.lfHeight);
  EXPECT_STREQ(L"ＭＳ ゴシック", got.lfFaceName);

  CBitmap bitmap;
  ASSERT_TRUE(bitmap.CreateBitmap(7, 5, 1, 1, nullptr));
  BITMAP info;
  ASSERT_NE(0, bitmap.GetBitmap(&info));
  EXPECT_EQ(7, info.bmWidth);
  EXPECT_EQ(5, info.bmHeight);
}

TEST(GdiObjects, PointFontFollowsTheDevice) {
  CFont font;
  ASSERT_TRUE(font.CreatePointFont(720, L"Tahoma"));  // one inch
  LOGFONTW got;
  font.GetLogFont(&got);
  CWindowDC screen(nullptr);
  EXPECT_EQ(-screen.GetDeviceCaps(LOGPIXELSY), got.lfHeight);
}

TEST(GdiObjects, StockObjectsSurviveTheirWrappers) {
  {
    CPen pen;
    ASSERT_TRUE(pen.CreateStockObject(BLACK_PEN));
    CPen same;
    ASSERT_TRUE(same.CreateStockObject(BLACK_PEN));
  }
  EXPECT_TRUE(IsAlive(::GetStockObject(BLACK_PEN)));
}

// What a context gives back as selected before, and may select again long after.
template <class T>
void ExpectNothingStandsForStock(int index) {
  HGDIOBJ stock = nullptr;
  {
    T holder;
    ASSERT_TRUE(holder.CreateStockObject(index)) << index;
    stock = holder.m_hObject;
    EXPECT_EQ(stock, ::GetStockObject(index));
    EXPECT_NE(T::FromHandle(holder), &holder) << index;
    EXPECT_TRUE(holder.DeleteObject()) << "harmless";
    EXPECT_EQ(nullptr, holder.m_hObject);
    T deleted_by_its_end;
    ASSERT_TRUE(deleted_by_its_end.Attach(stock));
  }
  EXPECT_TRUE(IsAlive(stock)) << index;
}

TEST(GdiObjects, NoObjectStandsForAStockObjectItHolds) {
  for (const int index : {BLACK_PEN, NULL_PEN}) ExpectNothingStandsForStock<CPen>(index);
  for (const int index : {NULL_BRUSH, WHITE_BRUSH, DC_BRUSH}) {
    ExpectNothingStandsForStock<CBrush>(index);
  }
  for (const int index : {SYSTEM_FONT, DEFAULT_GUI_FONT}) ExpectNothingStandsForStock<CFont>(index);
}

// The system answers with the bitmap that every memory context begins with.
TEST(GdiObjects, NoObjectOwnsTheBitmapOfNoSize) {
  CWindowDC screen(nullptr);
  CDC dc;
  ASSERT_TRUE(dc.CreateCompatibleDC(&screen));
  const HGDIOBJ first = ::GetCurrentObject(dc, OBJ_BITMAP);
  {
    CBitmap none;
    ASSERT_TRUE(none.CreateCompatibleBitmap(&screen, 0, 0));
    ASSERT_EQ(first, none.m_hObject);
    EXPECT_NE(dc.GetCurrentBitmap(), &none);
  }
  EXPECT_TRUE(IsAlive(first));
}

TEST(GdiObjects, NoObjectOwnsTheBrushOfASystemColour) {
  CBrush brush;
  ASSERT_TRUE(brush.CreateSysColorBrush(COLOR_BTNFACE));
  EXPECT_EQ(::GetSysColorBrush(COLOR_BTNFACE), brush.m_hObject);
  EXPECT_NE(CBrush::FromHandle(::GetSysColorBrush(COLOR_BTNFACE)), &brush);
}

TEST(GdiObjects, ConstructorThatCannotCreateThrows) {
  CBitmap empty;
  bool thrown = false;
  try {
    const CBrush brush(&empty);
  } catch (CResourceException* exception) {
    thrown = true;
    exception->Delete();
  }
  EXPECT_TRUE(thrown);
}

TEST(GdiObjects, RegionsCombine) {
  CRgn left, right, both;
  ASSERT_TRUE(left.CreateRectRgn(0, 0, 10, 10));
  ASSERT_TRUE(right.CreateRectRgn(5, 0, 20, 10));
  ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
  EXPECT_EQ(SIMPLEREGION, both.CombineRgn(&left, &right, RGN_AND));
  CRect box;
  both.GetRgnBox(box);
  EXPECT_EQ(CRect(5, 0, 10, 10), box);
  EXPECT_TRUE(both.PtInRegion(CPoint(5, 5)));
  EXPECT_FALSE(both.PtInRegion(CPoint(4, 5)));
}

}  // namespace
