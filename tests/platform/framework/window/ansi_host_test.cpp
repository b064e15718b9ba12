// A host compiled without UNICODE: the members named after macros of <windows.h> are still there,
// and still take wide strings. This file is compiled without UNICODE.

#include <windows.h>

#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/test_resources.h"

#if defined(UNICODE)
#error "This file tests the other mode."
#endif

namespace {

class AnsiWindow : public CWnd {
 public:
  int created = 0;
  int commands = 0;
  afx_msg int OnCreate(CREATESTRUCTW* create) {
    created += create->cx;
    return 0;
  }
  void OnOpen() { ++commands; }
  BOOL Make() {
    return CreateEx(0, AfxRegisterWndClass(0), L"測量", WS_POPUP, CRect(0, 0, 90, 60), nullptr, 0);
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(AnsiWindow, CWnd)
ON_WM_CREATE()
ON_COMMAND(5, OnOpen)
END_MESSAGE_MAP()

TEST(HostWithoutUnicode, WindowsTextsAreWide) {
  AnsiWindow window;
  ASSERT_TRUE(window.Make());
  EXPECT_EQ(90, window.created);
  CString text;
  window.GetWindowText(text);
  EXPECT_EQ(L"測量", text);
  window.SetWindowText(L"境界");
  EXPECT_EQ(2, window.GetWindowTextLength());
  wchar_t buffer[8];
  EXPECT_EQ(2, window.GetWindowText(buffer, 8));
  EXPECT_STREQ(L"境界", buffer);
  EXPECT_TRUE(::IsWindowUnicode(window.m_hWnd));
  EXPECT_EQ(&window, CWnd::FindWindow(nullptr, L"境界"));
}

TEST(HostWithoutUnicode, MessagesAndItems) {
  AnsiWindow window;
  ASSERT_TRUE(window.Make());
  window.SendMessage(WM_COMMAND, 5);
  EXPECT_EQ(1, window.commands);
  EXPECT_TRUE(window.PostMessage(WM_NULL));
  CEdit edit;
  ASSERT_TRUE(edit.Create(0, CRect(0, 0, 50, 20), &window, 9));
  window.SetDlgItemText(9, L"点");
  CString text;
  EXPECT_EQ(1, window.GetDlgItemText(9, text));
  EXPECT_EQ(L"点", text);
  EXPECT_EQ(true, window.SendDlgItemMessage(9, EM_GETLIMITTEXT) != 0);
  CComboBox combo;
  ASSERT_TRUE(combo.Create(CBS_DROPDOWNLIST, CRect(0, 30, 50, 90), &window, 10));
  EXPECT_EQ(0, combo.AddString(L"実線"));
  combo.GetLBText(0, text);
  EXPECT_EQ(L"実線", text);
}

TEST(HostWithoutUnicode, DrawsAndMeasuresWideText) {
  CDC dc;
  ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
  CBitmap bitmap;
  ASSERT_TRUE(bitmap.CreateBitmap(80, 30, 1, 32, nullptr));
  CBitmap* before = dc.SelectObject(&bitmap);
  CRect rect(0, 0, 80, 30);
  EXPECT_GT(dc.DrawText(L"点", rect, DT_CALCRECT), 0);
  EXPECT_EQ(rect.Width(), dc.GetTextExtent(L"点").cx);
  EXPECT_TRUE(dc.TextOut(0, 0, L"点", 1));
  EXPECT_TRUE(dc.TextOut(0, 0, CString(L"点")));
  EXPECT_TRUE(dc.ExtTextOut(0, 0, 0, nullptr, CString(L"点"), nullptr));
  TEXTMETRICW metrics;
  EXPECT_TRUE(dc.GetTextMetrics(&metrics));
  dc.SelectObject(before);
  LOGFONTW logFont = {};
  logFont.lfHeight = -12;
  CFont font;
  EXPECT_TRUE(font.CreateFontIndirect(&logFont));
  EXPECT_NE(0, font.GetObject(sizeof(logFont), &logFont));
  CFont named;
  EXPECT_TRUE(named.CreateFont(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"));
}

TEST(HostWithoutUnicode, LoadsResources) {
  CBitmap bitmap;
  EXPECT_TRUE(bitmap.LoadBitmap(IDB_UP));
  CMenu menu;
  EXPECT_TRUE(menu.LoadMenu(IDM_MAIN));
  EXPECT_TRUE(menu.AppendMenu(MF_STRING, 7, L"七"));
  CString text;
  EXPECT_EQ(1, menu.GetMenuString(7, text, MF_BYCOMMAND));
  EXPECT_TRUE(text.LoadString(IDS_BOTH));
  EXPECT_NE(nullptr, CWinApp().LoadStandardCursor(IDC_ARROW));
  CFileDialog dialog(TRUE);
  EXPECT_EQ(L"", dialog.GetFileTitle());
}

}  // namespace
