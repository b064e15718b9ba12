// Device contexts: getting and releasing them, and drawing as the raw calls do.

#include <gtest/gtest.h>

#include <vector>

#include "framework/scoped_select.h"
#include "tests/platform/framework/test_windows.h"

namespace {

using test::FrameWindow;

// A 32-bit bitmap whose pixels can be read.
class Canvas {
 public:
  static constexpr int kWidth = 60;
  static constexpr int kHeight = 40;
  CDC dc;

  Canvas() {
    dc.CreateCompatibleDC(nullptr);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    bitmap_.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS,
                                      reinterpret_cast<void**>(&pixels_), nullptr, 0));
    before_ = dc.SelectObject(&bitmap_);
    dc.PatBlt(0, 0, kWidth, kHeight, WHITENESS);
  }
  ~Canvas() { dc.SelectObject(before_); }
  std::vector<DWORD> Pixels() const {
    ::GdiFlush();
    return std::vector<DWORD>(pixels_, pixels_ + kWidth * kHeight);
  }

 private:
  DWORD* pixels_ = nullptr;
  CBitmap bitmap_;
  CBitmap* before_ = nullptr;
};

TEST(DeviceContext, DrawsWhatTheRawCallsDraw) {
  const POINT triangle[] = {{3, 3}, {30, 5}, {12, 30}};
  const struct Row {
    const char* name;
    void (*framework)(CDC&, const POINT*);
    void (*raw)(HDC, const POINT*);
  } rows[] = {
      {"lines",
       [](CDC& dc, const POINT*) {
         dc.MoveTo(2, 3);
         dc.LineTo(CPoint(40, 20));
       },
       [](HDC dc, const POINT*) {
         ::MoveToEx(dc, 2, 3, nullptr);
         ::LineTo(dc, 40, 20);
       }},
      {"polygon", [](CDC& dc, const POINT* p) { dc.Polygon(p, 3); },
       [](HDC dc, const POINT* p) { ::Polygon(dc, p, 3); }},
      {"polyline", [](CDC& dc, const POINT* p) { dc.Polyline(p, 3); },
       [](HDC dc, const POINT* p) { ::Polyline(dc, p, 3); }},
      {"ellipse", [](CDC& dc, const POINT*) { dc.Ellipse(CRect(4, 5, 30, 28)); },
       [](HDC dc, const POINT*) { ::Ellipse(dc, 4, 5, 30, 28); }},
      {"rectangle", [](CDC& dc, const POINT*) { dc.Rectangle(CRect(4, 5, 30, 28)); },
       [](HDC dc, const POINT*) { ::Rectangle(dc, 4, 5, 30, 28); }},
      {"inverted by raster operation",
       [](CDC& dc, const POINT*) {
         dc.SetROP2(R2_NOT);
         dc.Rectangle(1, 1, 20, 20);
       },
       [](HDC dc, const POINT*) {
         ::SetROP2(dc, R2_NOT);
         ::Rectangle(dc, 1, 1, 20, 20);
       }},
      {"solid fill", [](CDC& dc, const POINT*) { dc.FillSolidRect(5, 6, 7, 8, RGB(9, 99, 200)); },
       [](HDC dc, const POINT*) {
         const RECT rect = {5, 6, 12, 14};
         const HBRUSH brush = ::CreateSolidBrush(RGB(9, 99, 200));
         ::FillRect(dc, &rect, brush);
         ::DeleteObject(brush);
       }},
      {"text",
       [](CDC& dc, const POINT*) {
         dc.SetBkMode(TRANSPARENT);
         dc.SetTextColor(RGB(200, 0, 0));
         dc.TextOut(2, 2, CString(L"K1 測点"));
       },
       [](HDC dc, const POINT*) {
         ::SetBkMode(dc, TRANSPARENT);
         ::SetTextColor(dc, RGB(200, 0, 0));
         ::TextOutW(dc, 2, 2, L"K1 測点", 5);
       }},
      {"text in a rectangle",
       [](CDC& dc, const POINT*) {
         CRect rect(0, 0, 58, 38);
         dc.DrawText(L"abc", rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
       },
       [](HDC dc, const POINT*) {
         RECT rect = {0, 0, 58, 38};
         ::DrawTextW(dc, L"abc", 3, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
       }},
      {"clipped",
       [](CDC& dc, const POINT*) {
         dc.IntersectClipRect(CRect(10, 10, 20, 20));
         dc.Rectangle(0, 0, 50, 50);
         dc.PatBlt(0, 0, 50, 15, BLACKNESS);
       },
       [](HDC dc, const POINT*) {
         ::IntersectClipRect(dc, 10, 10, 20, 20);
         ::Rectangle(dc, 0, 0, 50, 50);
         ::PatBlt(dc, 0, 0, 50, 15, BLACKNESS);
       }},
  };
  for (const Row& row : rows) {
    Canvas ours, raw, blank;
    row.framework(ours.dc, triangle);
    row.raw(raw.dc.m_hDC, triangle);
    EXPECT_EQ(raw.Pixels(), ours.Pixels()) << row.name;
    EXPECT_NE(ours.Pixels(), blank.Pixels()) << row.name << " drew nothing";
  }
}

TEST(DeviceContext, BlitsFromAnother) {
  Canvas source, target;
  source.dc.FillSolidRect(0, 0, 10, 10, RGB(255, 0, 0));
  EXPECT_TRUE(target.dc.BitBlt(20, 10, 10, 10, &source.dc, 0, 0, SRCCOPY));
  EXPECT_EQ(RGB(255, 0, 0), target.dc.GetPixel(20, 10));
  EXPECT_EQ(RGB(255, 255, 255), target.dc.GetPixel(CPoint(19, 10)));
  EXPECT_TRUE(target.dc.StretchBlt(0, 0, 20, 20, &source.dc, 0, 0, 10, 10, SRCCOPY));
  EXPECT_EQ(RGB(255, 0, 0), target.dc.GetPixel(19, 19));
  EXPECT_TRUE(target.dc.BitBlt(0, 0, 5, 5, nullptr, 0, 0, BLACKNESS));
  EXPECT_EQ(RGB(0, 0, 0), target.dc.GetPixel(0, 0));
}

TEST(DeviceContext, StateIsSetAskedAndRestored) {
  Canvas canvas;
  const int saved = canvas.dc.SaveDC();
  EXPECT_NE(0, saved);
  EXPECT_EQ(RGB(0, 0, 0), canvas.dc.SetTextColor(RGB(1, 2, 3)));
  EXPECT_EQ(OPAQUE, canvas.dc.SetBkMode(TRANSPARENT));
  EXPECT_EQ(R2_COPYPEN, canvas.dc.SetROP2(R2_XORPEN));
  EXPECT_EQ(R2_XORPEN, canvas.dc.GetROP2());
  EXPECT_EQ(CPoint(0, 0), canvas.dc.MoveTo(5, 6));
  EXPECT_EQ(CPoint(5, 6), canvas.dc.MoveTo(7, 8));
  EXPECT_TRUE(canvas.dc.RestoreDC(saved));
  EXPECT_EQ(R2_COPYPEN, canvas.dc.GetROP2());
  EXPECT_EQ(RGB(0, 0, 0), canvas.dc.GetTextColor());
  EXPECT_EQ(OPAQUE, canvas.dc.GetBkMode());
  CRect clip;
  canvas.dc.GetClipBox(clip);
  EXPECT_EQ(CRect(0, 0, Canvas::kWidth, Canvas::kHeight), clip);
}

TEST(DeviceContext, TextExtentIsTheSystems) {
  Canvas canvas;
  SIZE raw;
  ::GetTextExtentPoint32W(canvas.dc.m_hDC, L"1234", 4, &raw);
  EXPECT_EQ(CSize(raw), canvas.dc.GetTextExtent(L"1234"));
  EXPECT_EQ(CSize(raw), canvas.dc.GetTextExtent(L"1234abc", 4));
}

TEST(DeviceContext, CreatedOneIsDeletedWithItsObject) {
  HDC handle = nullptr;
  {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    handle = dc.m_hDC;
    EXPECT_EQ(handle, dc.m_hAttribDC);
    EXPECT_EQ(&dc, CDC::FromHandle(handle));
  }
  EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(DeviceContext, DetachedOneLivesOn) {
  HDC handle = nullptr;
  {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    handle = dc.Detach();
  }
  EXPECT_NE(0u, ::GetObjectType(handle));
  CDC* temporary = CDC::FromHandle(handle);
  EXPECT_EQ(handle, temporary->m_hDC);
  EXPECT_EQ(handle, temporary->m_hAttribDC);
  EXPECT_EQ(temporary, CDC::FromHandle(handle));
  EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
  ::DeleteDC(handle);
}

TEST(WindowContexts, GoBackToTheSystem) {
  FrameWindow window;
  ASSERT_TRUE(window.Make());
  const DWORD before = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
  for (int i = 0; i < 1000; ++i) {
    CClientDC client(&window);
    CWindowDC whole(&window);
    ASSERT_NE(nullptr, client.m_hDC);
    ASSERT_NE(nullptr, whole.m_hDC);
    EXPECT_EQ(&client, CDC::FromHandle(client.m_hDC));
  }
  EXPECT_LE(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS), before + 10);
  CClientDC screen(nullptr);
  EXPECT_GT(screen.GetDeviceCaps(HORZRES), 0);
}

class PaintingWindow : public CWnd {
 public:
  int paints = 0;
  CRect painted;

 protected:
  void OnPaint() {
    CPaintDC dc(this);
    painted = dc.m_ps.rcPaint;
    ++paints;
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(PaintingWindow, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(WindowContexts, PaintContextKnowsAndValidatesItsRectangle) {
  PaintingWindow window;
  ASSERT_TRUE(
      window.CreateEx(0, nullptr, L"", WS_POPUP | WS_VISIBLE, 0, 0, 80, 60, nullptr, nullptr));
  window.UpdateWindow();
  window.ValidateRect(nullptr);
  const int before = window.paints;
  window.InvalidateRect(CRect(10, 20, 30, 40));
  window.UpdateWindow();
  EXPECT_EQ(before + 1, window.paints);
  EXPECT_EQ(CRect(10, 20, 30, 40), window.painted);
  window.UpdateWindow();
  EXPECT_EQ(before + 1, window.paints);
}

TEST(WindowContexts, NoWindowNoContext) {
  CWnd dead;
  dead.Attach(reinterpret_cast<HWND>(0x7ffe));
  bool thrown = false;
  try {
    CClientDC dc(&dead);
  } catch (CResourceException* exception) {
    thrown = true;
    exception->Delete();
  }
  EXPECT_TRUE(thrown);
  dead.Detach();
}

}  // namespace
