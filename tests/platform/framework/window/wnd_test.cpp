// A window's life: creation, binding, and destruction from either side.

#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/framework/test_windows.h"

namespace {

using test::FrameWindow;
using test::MakePlainWindow;

// Writes down what happens to it.
class LoggingWindow : public CWnd {
 public:
  std::vector<UINT> messages;
  int subclassed = 0;
  int gone = 0;
  HWND handleWhenSubclassed = nullptr;
  HWND handleWhenGone = reinterpret_cast<HWND>(1);

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    messages.push_back(message);
    return CWnd::WindowProc(message, wParam, lParam);
  }
  void PreSubclassWindow() override {
    ++subclassed;
    handleWhenSubclassed = m_hWnd;
  }
  void PostNcDestroy() override {
    ++gone;
    handleWhenGone = m_hWnd;
  }
};

const RECT kRect = {10, 20, 110, 70};

TEST(WindowCreation, ChildHasItsStylePlaceIdAndText) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CWnd child;
  ASSERT_TRUE(child.Create(nullptr, L"text", WS_BORDER, kRect, &parent, 17));
  EXPECT_TRUE(child.GetStyle() & WS_CHILD);
  EXPECT_TRUE(child.GetStyle() & WS_BORDER);
  EXPECT_EQ(17, child.GetDlgCtrlID());
  EXPECT_EQ(&parent, child.GetParent());
  CRect rect;
  child.GetWindowRect(rect);
  parent.ScreenToClient(rect);
  EXPECT_EQ(CRect(kRect), rect);
  CString text;
  child.GetWindowText(text);
  EXPECT_EQ(L"text", text);
}

TEST(WindowCreation, FirstMessageReachesTheObjectWithItsHandle) {
  LoggingWindow window;
  ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  ASSERT_FALSE(window.messages.empty());
  EXPECT_EQ(1, window.subclassed);
  EXPECT_EQ(window.m_hWnd, window.handleWhenSubclassed);
  EXPECT_NE(std::find(window.messages.begin(), window.messages.end(), WM_NCCREATE),
            window.messages.end());
}

TEST(WindowCreation, SystemClassIsSubclassedFromTheStart) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  LoggingWindow edit;
  ASSERT_TRUE(edit.Create(L"EDIT", L"", 0, kRect, &parent, 1));
  EXPECT_NE(std::find(edit.messages.begin(), edit.messages.end(), WM_CREATE), edit.messages.end());
  edit.SendMessage(WM_CHAR, L'x', 1);
  CString text;
  edit.GetWindowText(text);
  EXPECT_EQ(L"x", text) << "the edit's own procedure still works";
}

TEST(WindowCreation, UnknownClassFailsAndTellsTheObject) {
  LoggingWindow window;
  EXPECT_FALSE(window.CreateEx(0, L"no such class", L"", WS_POPUP, kRect, nullptr, 0));
  EXPECT_EQ(nullptr, window.m_hWnd);
  EXPECT_EQ(1, window.gone);
}

class RefusingWindow : public LoggingWindow {
 protected:
  BOOL PreCreateWindow(CREATESTRUCTW&) override { return FALSE; }
};

TEST(WindowCreation, PreCreateWindowMayRefuse) {
  RefusingWindow window;
  EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  EXPECT_EQ(1, window.gone);
}

class FailingCreate : public LoggingWindow {
 public:
  int OnCreate(CREATESTRUCTW*) { return -1; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(FailingCreate, LoggingWindow)
ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowCreation, OnCreateMayRefuseAndTheObjectIsTold) {
  FailingCreate window;
  EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  EXPECT_EQ(nullptr, window.m_hWnd);
  EXPECT_EQ(1, window.gone);
}

class WindowThatMakesAChild : public CWnd {
 public:
  LoggingWindow child;
  int OnCreate(CREATESTRUCTW* create) {
    if (CWnd::OnCreate(create) == -1) return -1;
    return child.Create(L"BUTTON", L"", 0, kRect, this, 3) ? 0 : -1;
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(WindowThatMakesAChild, CWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowCreation, ChildMadeWhileItsParentIsMadeGetsItsOwnHandle) {
  WindowThatMakesAChild window;
  ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  EXPECT_NE(window.m_hWnd, window.child.m_hWnd);
  EXPECT_EQ(window.m_hWnd, ::GetParent(window.child.m_hWnd));
  EXPECT_EQ(&window.child, CWnd::FromHandlePermanent(window.child.m_hWnd));
}

TEST(WindowEnd, ObjectEmptiesAndIsToldOnce) {
  struct Row {
    const char* name;
    void (*end)(LoggingWindow&, FrameWindow& parent);
  } rows[] = {
      {"its DestroyWindow", [](LoggingWindow& w, FrameWindow&) { w.DestroyWindow(); }},
      {"the raw call", [](LoggingWindow& w, FrameWindow&) { ::DestroyWindow(w.m_hWnd); }},
      {"the parent's DestroyWindow", [](LoggingWindow&, FrameWindow& p) { p.DestroyWindow(); }},
      {"the raw call on the parent",
       [](LoggingWindow&, FrameWindow& p) { ::DestroyWindow(p.m_hWnd); }},
  };
  for (const Row& row : rows) {
    FrameWindow parent;
    ASSERT_TRUE(parent.Make());
    LoggingWindow child;
    ASSERT_TRUE(child.Create(L"BUTTON", L"", 0, kRect, &parent, 1));
    const HWND handle = child.m_hWnd;
    row.end(child, parent);
    EXPECT_EQ(nullptr, child.m_hWnd) << row.name;
    EXPECT_EQ(1, child.gone) << row.name;
    EXPECT_EQ(nullptr, child.handleWhenGone) << row.name;
    EXPECT_FALSE(::IsWindow(handle)) << row.name;
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle)) << row.name;
    EXPECT_FALSE(child.DestroyWindow()) << row.name << ": nothing is left to destroy";
  }
}

TEST(WindowEnd, ObjectsEndDestroysTheWindow) {
  HWND handle = nullptr;
  {
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
    handle = window.m_hWnd;
  }
  EXPECT_FALSE(::IsWindow(handle));
}

class SelfDeleting : public CWnd {
 public:
  static inline int alive = 0;
  SelfDeleting() { ++alive; }
  ~SelfDeleting() override { --alive; }

 protected:
  void PostNcDestroy() override { delete this; }
};

TEST(WindowEnd, ObjectMayDeleteItself) {
  auto* window = new SelfDeleting;
  ASSERT_TRUE(window->CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  EXPECT_EQ(1, SelfDeleting::alive);
  EXPECT_TRUE(window->DestroyWindow());
  EXPECT_EQ(0, SelfDeleting::alive);
}

class DeletesItselfEarly : public CWnd {
 public:
  static inline int alive = 0;
  DeletesItselfEarly() { ++alive; }
  ~DeletesItselfEarly() override { --alive; }
  void OnNcDestroy() {
    CWnd::OnNcDestroy();
    Detach();
    delete this;
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(DeletesItselfEarly, CWnd)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

TEST(WindowEnd, ObjectMayDeleteItselfInItsLastHandler) {
  auto* window = new DeletesItselfEarly;
  ASSERT_TRUE(window->CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  ::DestroyWindow(window->m_hWnd);
  EXPECT_EQ(0, DeletesItselfEarly::alive);
}

TEST(WindowEnd, WindowCanBeMadeAgain) {
  LoggingWindow window;
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(window.CreateEx(0, L"BUTTON", L"", WS_POPUP, kRect, nullptr, 0));
    EXPECT_EQ(&window, CWnd::FromHandle(window.m_hWnd));
    EXPECT_TRUE(window.DestroyWindow());
  }
  EXPECT_EQ(3, window.gone);
}

TEST(WindowAttach, AttachedHandleIsGivenBack) {
  const HWND plain = MakePlainWindow();
  CWnd window;
  EXPECT_FALSE(window.Attach(nullptr));
  ASSERT_TRUE(window.Attach(plain));
  EXPECT_EQ(&window, CWnd::FromHandlePermanent(plain));
  EXPECT_EQ(plain, window.Detach());
  EXPECT_EQ(nullptr, window.m_hWnd);
  EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
  EXPECT_TRUE(::IsWindow(plain));
  ::DestroyWindow(plain);
}

TEST(WindowAttach, DestroyWindowEmptiesAnAttachedObject) {
  CWnd window;
  ASSERT_TRUE(window.Attach(MakePlainWindow()));
  EXPECT_TRUE(window.DestroyWindow());
  EXPECT_EQ(nullptr, window.m_hWnd);
}

TEST(WindowSubclass, OldProcedureComesBack) {
  const HWND plain = MakePlainWindow(nullptr, L"EDIT");
  const LONG_PTR procedure = ::GetWindowLongPtrW(plain, GWLP_WNDPROC);
  LoggingWindow window;
  EXPECT_FALSE(window.SubclassWindow(nullptr));
  ASSERT_TRUE(window.SubclassWindow(plain));
  EXPECT_NE(::GetWindowLongPtrW(plain, GWLP_WNDPROC), procedure);
  ::SendMessageW(plain, WM_CHAR, L'a', 1);
  EXPECT_EQ(std::vector<UINT>{WM_CHAR}, window.messages);
  EXPECT_EQ(plain, window.UnsubclassWindow());
  EXPECT_EQ(procedure, ::GetWindowLongPtrW(plain, GWLP_WNDPROC));
  ::SendMessageW(plain, WM_CHAR, L'b', 1);
  EXPECT_EQ(1u, window.messages.size());
  wchar_t text[16] = {};
  ::GetWindowTextW(plain, text, 16);
  EXPECT_STREQ(L"abplain", text);
  ::DestroyWindow(plain);
}

TEST(WindowSubclass, ItemOfADialogById) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  const HWND item = MakePlainWindow(parent.m_hWnd, L"BUTTON");
  ::SetWindowLongPtrW(item, GWLP_ID, 42);
  CWnd window;
  EXPECT_FALSE(window.SubclassDlgItem(43, &parent));
  ASSERT_TRUE(window.SubclassDlgItem(42, &parent));
  EXPECT_EQ(item, window.m_hWnd);
  EXPECT_EQ(&window, parent.GetDlgItem(42));
}

class ThrowingWindow : public CWnd {
 public:
  void OnPaint() { AfxThrowUserException(); }
  int OnCreate(CREATESTRUCTW*) {
    if (throwOnCreate) AfxThrowUserException();
    return 0;
  }
  bool throwOnCreate = false;
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ThrowingWindow, CWnd)
ON_WM_PAINT()
ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowProcedure, ExceptionOfAHandlerStaysInside) {
  ThrowingWindow window;
  ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP | WS_VISIBLE, kRect, nullptr, 0));
  window.Invalidate();
  window.UpdateWindow();
  EXPECT_FALSE(window.GetUpdateRect(nullptr)) << "not painted again and again";
  window.DestroyWindow();
  window.throwOnCreate = true;
  EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
}

TEST(WindowClass, OneForEachCombination) {
  const LPCWSTR plain = AfxRegisterWndClass(CS_DBLCLKS);
  EXPECT_STREQ(plain, AfxRegisterWndClass(CS_DBLCLKS));
  const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
  const LPCWSTR withCursor = AfxRegisterWndClass(CS_DBLCLKS, arrow);
  EXPECT_STRNE(withCursor, plain);
  EXPECT_STRNE(AfxRegisterWndClass(CS_HREDRAW), plain);
  WNDCLASSW info;
  ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), plain, &info));
  EXPECT_EQ(nullptr, info.hCursor);
  EXPECT_EQ(nullptr, info.hbrBackground);
  EXPECT_EQ(nullptr, info.hIcon);
  EXPECT_EQ(UINT{CS_DBLCLKS}, info.style);
  ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), withCursor, &info));
  EXPECT_EQ(arrow, info.hCursor);
}

TEST(WindowClass, RegisteringTwiceIsNoError) {
  WNDCLASSW windowClass = {};
  windowClass.lpfnWndProc = ::DefWindowProcW;
  windowClass.hInstance = AfxGetInstanceHandle();
  windowClass.lpszClassName = L"framework test class";
  EXPECT_TRUE(AfxRegisterClass(&windowClass));
  EXPECT_TRUE(AfxRegisterClass(&windowClass));
  windowClass.lpszClassName = nullptr;
  EXPECT_FALSE(AfxRegisterClass(&windowClass));
}

TEST(WindowState, StylesChangeOnlyWhenTheyDiffer) {
  CWnd window;
  ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  EXPECT_TRUE(window.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
  EXPECT_TRUE(window.GetStyle() & WS_BORDER);
  EXPECT_FALSE(window.ModifyStyle(0, WS_BORDER));
  EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_CLIENTEDGE));
  EXPECT_TRUE(window.GetExStyle() & WS_EX_CLIENTEDGE);
}

TEST(WindowState, VisibleEnabledAndPlaced) {
  CWnd window;
  ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, kRect, nullptr, 0));
  EXPECT_FALSE(window.IsWindowVisible());
  window.ShowWindow(SW_SHOWNOACTIVATE);
  EXPECT_TRUE(window.IsWindowVisible());
  window.EnableWindow(FALSE);
  EXPECT_FALSE(window.IsWindowEnabled());
  window.MoveWindow(CRect(5, 6, 65, 46));
  CRect rect;
  window.GetWindowRect(rect);
  EXPECT_EQ(CRect(5, 6, 65, 46), rect);
  EXPECT_TRUE(window.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
  EXPECT_TRUE(window.GetExStyle() & WS_EX_TOPMOST);
  EXPECT_EQ(::GetDesktopWindow(), CWnd::GetDesktopWindow()->m_hWnd);
}

TEST(WindowState, FontIsTheOneThatWasSet) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CWnd label;
  ASSERT_TRUE(label.Create(L"STATIC", L"", 0, kRect, &parent, 1));
  CFont font;
  ASSERT_TRUE(font.CreatePointFont(90, L"Tahoma"));
  label.SetFont(&font);
  EXPECT_EQ(&font, label.GetFont());
  label.DestroyWindow();
}

TEST(DialogItems, TextNumbersAndChecks) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CWnd edit, first, second;
  ASSERT_TRUE(edit.Create(L"EDIT", L"", 0, kRect, &parent, 1));
  ASSERT_TRUE(first.Create(L"BUTTON", L"", BS_AUTORADIOBUTTON, kRect, &parent, 2));
  ASSERT_TRUE(second.Create(L"BUTTON", L"", BS_AUTORADIOBUTTON, kRect, &parent, 3));
  parent.SetDlgItemText(1, L"測点");
  CString text;
  EXPECT_EQ(2, parent.GetDlgItemText(1, text));
  EXPECT_EQ(L"測点", text);
  EXPECT_EQ(0, parent.GetDlgItemText(99, text));
  EXPECT_TRUE(text.IsEmpty());
  parent.SetDlgItemInt(1, static_cast<UINT>(-12));
  EXPECT_EQ(-12, static_cast<int>(parent.GetDlgItemInt(1)));
  parent.CheckRadioButton(2, 3, 3);
  EXPECT_EQ(UINT{BST_UNCHECKED}, parent.IsDlgButtonChecked(2));
  EXPECT_EQ(3, parent.GetCheckedRadioButton(2, 3));
  parent.CheckDlgButton(2, BST_CHECKED);
  EXPECT_EQ(UINT{BST_CHECKED}, parent.IsDlgButtonChecked(2));
  HWND handle = nullptr;
  parent.GetDlgItem(1, &handle);
  EXPECT_EQ(handle, edit.m_hWnd);
  EXPECT_EQ(nullptr, parent.GetDlgItem(77));
  EXPECT_EQ(3, parent.SendDlgItemMessage(1, WM_GETTEXTLENGTH));
}

}  // namespace
