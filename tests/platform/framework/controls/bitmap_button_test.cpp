// Owner-drawn bitmap buttons: which picture for which state, pixel by pixel.

#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/framework/test_resources.h"
#include "tests/platform/framework/test_windows.h"
#include "tests/support/message_pump.h"

namespace {

using test::FrameWindow;

constexpr int kWidth = 8;
constexpr int kHeight = 6;

// A memory bitmap of a button's size, grey at first.
class Surface {
 public:
  Surface() : dc_(::CreateCompatibleDC(nullptr)) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    bitmap_ = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixels_),
                                 nullptr, 0);
    ::SelectObject(dc_, bitmap_);
    const RECT all = {0, 0, kWidth, kHeight};
    ::FillRect(dc_, &all, static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH)));
  }
  ~Surface() {
    ::DeleteDC(dc_);
    ::DeleteObject(bitmap_);
  }
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  HDC Context() const { return dc_; }
  std::vector<DWORD> Pixels() const {
    ::GdiFlush();
    return std::vector<DWORD>(pixels_, pixels_ + kWidth * kHeight);
  }

 private:
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  DWORD* pixels_ = nullptr;
};

// What a raw copy of the resource's bitmap shows; 0 copies nothing.
std::vector<DWORD> RawPicture(UINT id) {
  Surface surface;
  if (id) {
    const HBITMAP bitmap = ::LoadBitmapW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id));
    const HDC source = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ before = ::SelectObject(source, bitmap);
    ::BitBlt(surface.Context(), 0, 0, kWidth, kHeight, source, 0, 0, SRCCOPY);
    ::SelectObject(source, before);
    ::DeleteDC(source);
    ::DeleteObject(bitmap);
  }
  return surface.Pixels();
}

// What the button shows in a state, asked through its parent's WM_DRAWITEM.
std::vector<DWORD> Picture(CWnd& parent, CWnd& button, UINT state) {
  Surface surface;
  DRAWITEMSTRUCT item = {};
  item.CtlType = ODT_BUTTON;
  item.CtlID = static_cast<UINT>(button.GetDlgCtrlID());
  item.itemAction = ODA_DRAWENTIRE;
  item.itemState = state;
  item.hwndItem = button.m_hWnd;
  item.hDC = surface.Context();
  item.rcItem = {0, 0, kWidth, kHeight};
  parent.SendMessage(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
  return surface.Pixels();
}

TEST(BitmapButton, ShowsThePictureOfItsState) {
  const struct Row {
    UINT up, selected, focused, disabled;
    UINT state;
    UINT shown;
  } rows[] = {
      {IDB_UP, IDB_SELECTED, IDB_FOCUSED, IDB_DISABLED, 0, IDB_UP},
      {IDB_UP, IDB_SELECTED, IDB_FOCUSED, IDB_DISABLED, ODS_SELECTED, IDB_SELECTED},
      {IDB_UP, IDB_SELECTED, IDB_FOCUSED, IDB_DISABLED, ODS_FOCUS, IDB_FOCUSED},
      {IDB_UP, IDB_SELECTED, IDB_FOCUSED, IDB_DISABLED, ODS_DISABLED, IDB_DISABLED},
      {IDB_UP, IDB_SELECTED, IDB_FOCUSED, IDB_DISABLED, ODS_SELECTED | ODS_FOCUS, IDB_SELECTED},
      {IDB_UP, IDB_SELECTED, IDB_FOCUSED, IDB_DISABLED, ODS_FOCUS | ODS_DISABLED, IDB_FOCUSED},
      {IDB_UP, 0, IDB_FOCUSED, IDB_DISABLED, ODS_SELECTED | ODS_FOCUS, IDB_FOCUSED},
      {IDB_UP, 0, 0, IDB_DISABLED, ODS_SELECTED | ODS_FOCUS, IDB_UP},
      {IDB_UP, 0, 0, IDB_DISABLED, ODS_SELECTED | ODS_DISABLED, IDB_DISABLED},
      {IDB_UP, 0, 0, 0, ODS_SELECTED | ODS_FOCUS | ODS_DISABLED, IDB_UP},
      {0, IDB_SELECTED, 0, 0, 0, 0},
  };
  for (const Row& row : rows) {
    FrameWindow parent;
    ASSERT_TRUE(parent.Make());
    CBitmapButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 30, 30), &parent, 7));
    EXPECT_EQ(row.up != 0, button.LoadBitmaps(row.up, row.selected, row.focused, row.disabled));
    EXPECT_EQ(RawPicture(row.shown), Picture(parent, button, row.state))
        << "state " << row.state << " wants " << row.shown;
  }
  EXPECT_NE(RawPicture(IDB_UP), RawPicture(IDB_SELECTED)) << "the pictures differ";
}

TEST(BitmapButton, ReloadingReplacesThePictures) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CBitmapButton button;
  ASSERT_TRUE(button.Create(L"", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 30, 30), &parent, 7));
  ASSERT_TRUE(button.LoadBitmaps(IDB_UP, IDB_SELECTED));
  ASSERT_TRUE(button.LoadBitmaps(L"OKU"));
  EXPECT_EQ(Picture(parent, button, 0), Picture(parent, button, ODS_SELECTED));
  EXPECT_FALSE(button.LoadBitmaps(IDB_UP, 9999)) << "a missing bitmap is reported";
  EXPECT_EQ(RawPicture(IDB_UP), Picture(parent, button, ODS_SELECTED));
}

TEST(BitmapButton, TakesTheSizeOfItsPicture) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CBitmapButton button;
  ASSERT_TRUE(button.Create(L"", WS_CHILD | BS_OWNERDRAW, CRect(5, 6, 60, 60), &parent, 7));
  button.SizeToContent();
  CRect rect;
  button.GetClientRect(rect);
  EXPECT_EQ(CSize(55, 54), rect.Size()) << "nothing loaded, nothing changed";
  ASSERT_TRUE(button.LoadBitmaps(IDB_UP));
  button.SizeToContent();
  button.GetClientRect(rect);
  EXPECT_EQ(CSize(kWidth, kHeight), rect.Size());
}

TEST(BitmapButton, DrawsItselfOnTheScreenAndWhenPressed) {
  FrameWindow parent;
  ASSERT_TRUE(
      parent.CreateEx(0, nullptr, L"", WS_POPUP | WS_VISIBLE, 0, 0, 60, 40, nullptr, nullptr));
  CBitmapButton button;
  ASSERT_TRUE(button.LoadBitmaps(IDB_UP, IDB_SELECTED));
  ASSERT_TRUE(
      button.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(4, 4, 12, 10), &parent, 7));
  const auto pixel = [&] {
    button.UpdateWindow();
    CClientDC dc(&button);
    return dc.GetPixel(7, 1);
  };
  EXPECT_TRUE(tavix::test::PumpUntil([&] { return pixel() == RGB(255, 0, 0); }));
  button.SetState(TRUE);
  EXPECT_TRUE(tavix::test::PumpUntil([&] { return pixel() == RGB(0, 255, 0); }));
  button.SetState(FALSE);
  EXPECT_TRUE(tavix::test::PumpUntil([&] { return pixel() == RGB(255, 0, 0); }));
}

TEST(BitmapButton, DrawsItselfInADialogByItsCaption) {
  CDialog dialog;
  ASSERT_TRUE(dialog.Create(IDD_OWNER_DRAWN));
  CBitmapButton button;
  ASSERT_TRUE(button.AutoLoad(IDC_BUTTON, &dialog));
  CRect rect;
  button.GetClientRect(rect);
  EXPECT_EQ(CSize(kWidth, kHeight), rect.Size());
  const auto up = Picture(dialog, button, 0);
  const auto down = Picture(dialog, button, ODS_SELECTED);
  EXPECT_NE(up, RawPicture(0)) << "something is drawn";
  EXPECT_NE(down, up);
  EXPECT_EQ(up, Picture(dialog, button, ODS_FOCUS));
  dialog.DestroyWindow();
}

class DrawingParent : public FrameWindow {
 public:
  int asked = 0;
  void OnDrawItem(int id, DRAWITEMSTRUCT* item) {
    ++asked;
    FrameWindow::OnDrawItem(id, item);
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(DrawingParent, FrameWindow)
ON_WM_DRAWITEM()
END_MESSAGE_MAP()

TEST(BitmapButton, ParentsOwnHandlerComesFirst) {
  DrawingParent parent;
  ASSERT_TRUE(parent.Make());
  CBitmapButton button;
  ASSERT_TRUE(button.Create(L"", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 30, 30), &parent, 7));
  ASSERT_TRUE(button.LoadBitmaps(IDB_UP));
  EXPECT_EQ(RawPicture(IDB_UP), Picture(parent, button, 0));
  EXPECT_EQ(1, parent.asked);
}

}  // namespace
