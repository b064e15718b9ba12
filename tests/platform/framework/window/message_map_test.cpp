// Which handler is called for a message, and with which arguments.

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/platform/framework/test_windows.h"

namespace {

using test::FrameWindow;

UINT registeredMessage = 0;

// Logs each call as text: the handler's name and its arguments.
class Recorder : public CWnd {
 public:
  std::vector<std::wstring> log;

  void Make() { ASSERT_TRUE(CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 90, 60, nullptr, nullptr)); }
  std::wstring Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    log.clear();
    answer = SendMessage(message, wParam, lParam);
    return log.empty() ? L"" : log.back();
  }
  LRESULT answer = 0;

 protected:
  template <class... Values>
  void Note(LPCWSTR format, Values... values) {
    CString text;
    text.Format(format, values...);
    log.emplace_back(text);
  }

  afx_msg void OnLButtonDown(UINT flags, CPoint p) { Note(L"down %u %d,%d", flags, p.x, p.y); }
  afx_msg void OnLButtonUp(UINT flags, CPoint p) { Note(L"up %u %d,%d", flags, p.x, p.y); }
  afx_msg void OnLButtonDblClk(UINT flags, CPoint p) { Note(L"double %u %d,%d", flags, p.x, p.y); }
  afx_msg void OnMouseMove(UINT flags, CPoint p) { Note(L"move %u %d,%d", flags, p.x, p.y); }
  afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint p) {
    Note(L"wheel %u %d %d,%d", flags, delta, p.x, p.y);
    return TRUE;
  }
  afx_msg void OnSize(UINT type, int cx, int cy) { Note(L"size %u %dx%d", type, cx, cy); }
  afx_msg void OnTimer(UINT_PTR id) { Note(L"timer %u", static_cast<UINT>(id)); }
  afx_msg void OnKeyDown(UINT key, UINT count, UINT flags) {
    Note(L"key %u %u %u", key, count, flags);
  }
  afx_msg void OnChar(UINT character, UINT count, UINT flags) {
    Note(L"char %u %u %u", character, count, flags);
  }
  afx_msg void OnCaptureChanged(CWnd* to) { Note(L"capture to %s", to == this ? L"me" : L"-"); }
  afx_msg void OnSetFocus(CWnd* from) { Note(L"focus from %s", from ? L"a window" : L"nowhere"); }
  afx_msg void OnKillFocus(CWnd* to) { Note(L"focus to %s", to ? L"a window" : L"nowhere"); }
  afx_msg void OnClose() { Note(L"close"); }
  afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar) {
    Note(L"h %u %u %s", code, pos, bar ? L"bar" : L"frame");
  }
  afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar) {
    Note(L"v %u %u %s", code, pos, bar ? L"bar" : L"frame");
  }
  afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system) {
    Note(L"menu %s %u %d", menu ? L"menu" : L"-", index, system);
  }
  afx_msg BOOL OnEraseBkgnd(CDC* dc) {
    Note(L"erase %s", dc && dc->m_hDC ? L"dc" : L"-");
    return 7;
  }
  afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type) {
    Note(L"colour %s %s %u", dc ? L"dc" : L"-", control == this ? L"me" : L"-", type);
    return static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
  }
  afx_msg LRESULT OnUser(WPARAM wParam, LPARAM lParam) {
    Note(L"user %u %d", static_cast<UINT>(wParam), static_cast<int>(lParam));
    return 99;
  }
  afx_msg LRESULT OnRegistered(WPARAM, LPARAM) {
    Note(L"registered");
    return 5;
  }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_SIZE()
ON_WM_TIMER()
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_WM_CAPTURECHANGED()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_CLOSE()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_INITMENUPOPUP()
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_MESSAGE(WM_APP + 1, &Recorder::OnUser)
ON_REGISTERED_MESSAGE(registeredMessage, &Recorder::OnRegistered)
END_MESSAGE_MAP()

TEST(MessageMap, HandlersGetTheMessageTakenApart) {
  Recorder window;
  window.Make();
  const auto self = reinterpret_cast<LPARAM>(window.m_hWnd);
  const auto dc = reinterpret_cast<WPARAM>(::GetDC(window.m_hWnd));
  const auto menu = reinterpret_cast<WPARAM>(::CreateMenu());
  registeredMessage = ::RegisterWindowMessageW(L"framework message map test");
  const LPARAM minusFiveMinusSix = MAKELPARAM(-5, -6);
  const struct Row {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    const wchar_t* call;
    LRESULT answer;
  } rows[] = {
      {WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(300, 40), L"down 5 300,40", 0},
      {WM_LBUTTONUP, 0, minusFiveMinusSix, L"up 0 -5,-6", 0},
      {WM_LBUTTONDBLCLK, 1, MAKELPARAM(1, 2), L"double 1 1,2", 0},
      {WM_MOUSEMOVE, 0, MAKELPARAM(32767, -32768), L"move 0 32767,-32768", 0},
      {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), minusFiveMinusSix, L"wheel 8 -120 -5,-6", 1},
      {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 40000), L"size 2 640x40000", 0},
      {WM_TIMER, 12, 0, L"timer 12", 0},
      {WM_KEYDOWN, VK_F5, static_cast<LPARAM>(0xC0010003u), L"key 116 3 49153", 0},
      {WM_CHAR, 0x6E2C, 1, L"char 28204 1 0", 0},
      {WM_CAPTURECHANGED, 0, self, L"capture to me", 0},
      {WM_CAPTURECHANGED, 0, 0, L"capture to -", 0},
      {WM_SETFOCUS, 0, 0, L"focus from nowhere", 0},
      {WM_KILLFOCUS, static_cast<WPARAM>(self), 0, L"focus to a window", 0},
      {WM_CLOSE, 0, 0, L"close", 0},
      {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 77), 0, L"h 5 77 frame", 0},
      {WM_VSCROLL, SB_LINEDOWN, self, L"v 1 0 bar", 0},
      {WM_INITMENUPOPUP, menu, MAKELPARAM(2, TRUE), L"menu menu 2 1", 0},
      {WM_ERASEBKGND, dc, 0, L"erase dc", 7},
      {WM_CTLCOLORMSGBOX, dc, self, L"colour dc me 0",
       reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH))},
      {WM_CTLCOLORSTATIC, dc, self, L"colour dc me 6",
       reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH))},
      {WM_APP + 1, 3, -4, L"user 3 -4", 99},
      {WM_APP + 2, 3, -4, L"", 0},
      {registeredMessage, 0, 0, L"registered", 5},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.call, window.Send(row.message, row.wParam, row.lParam)) << row.message;
    EXPECT_EQ(row.answer, window.answer) << row.call;
  }
  ::DestroyMenu(reinterpret_cast<HMENU>(menu));
  ::ReleaseDC(window.m_hWnd, reinterpret_cast<HDC>(dc));
}

class Derived : public Recorder {
 protected:
  afx_msg void OnLButtonUp(UINT, CPoint) { Note(L"derived up"); }
  afx_msg void OnMouseMove(UINT flags, CPoint point) {
    Note(L"derived move");
    Recorder::OnMouseMove(flags, point);
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Derived, Recorder)
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

// A class without a map of its own between two that have one.
class Between : public Recorder {};
class BelowBetween : public Between {
 public:
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(BelowBetween, Between)
END_MESSAGE_MAP()

TEST(MessageMap, NearestClassWinsAndBasesAnswerTheRest) {
  Derived window;
  window.Make();
  EXPECT_EQ(L"derived up", window.Send(WM_LBUTTONUP));
  EXPECT_EQ(L"down 0 0,0", window.Send(WM_LBUTTONDOWN));
  EXPECT_EQ(L"move 0 0,0", window.Send(WM_MOUSEMOVE));
  EXPECT_EQ(2u, window.log.size()) << "the derived handler called the base's";
  BelowBetween below;
  below.Make();
  EXPECT_EQ(L"up 0 0,0", below.Send(WM_LBUTTONUP));
}

// An inherited handler may be named without being written.
class NamesInherited : public CWnd {
 public:
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(NamesInherited, CWnd)
ON_WM_PAINT()
ON_WM_CLOSE()
ON_WM_GETDLGCODE()
ON_WM_SYSCOMMAND()
END_MESSAGE_MAP()

TEST(MessageMap, HandlersOfCWndPassTheMessageOn) {
  NamesInherited window;
  ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
  window.SendMessage(WM_CLOSE);
  EXPECT_EQ(nullptr, window.m_hWnd) << "the default of WM_CLOSE destroys";
}

// ---- Commands

class CommandWindow : public FrameWindow {
 public:
  std::vector<std::wstring> log;

 protected:
  void OnOld() { log.push_back(L"old"); }
  void OnQualified() { log.push_back(L"qualified"); }
  void OnRange(UINT id) { log.push_back(L"range " + std::to_wstring(id)); }
  BOOL OnEx(UINT id) {
    log.push_back(L"ex " + std::to_wstring(id));
    return FALSE;
  }
  void OnChange() { log.push_back(L"change"); }
  void OnTip(NMHDR* header, LRESULT* result) {
    log.push_back(L"notify " + std::to_wstring(header->idFrom));
    *result = 31;
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CommandWindow, FrameWindow)
ON_COMMAND(1, OnOld)
ON_COMMAND(2, &CommandWindow::OnQualified)
ON_COMMAND(3, CommandWindow::OnQualified)
ON_COMMAND_RANGE(10, 19, &CommandWindow::OnRange)
ON_COMMAND_EX(30, &CommandWindow::OnEx)
ON_BN_CLICKED(40, &CommandWindow::OnQualified)
ON_EN_CHANGE(50, &CommandWindow::OnChange)
ON_NOTIFY(NM_CLICK, 60, &CommandWindow::OnTip)
END_MESSAGE_MAP()

TEST(Commands, ReachTheirHandlerByIdAndCode) {
  CommandWindow window;
  ASSERT_TRUE(window.Make());
  const auto control = reinterpret_cast<LPARAM>(test::MakePlainWindow(window.m_hWnd));
  const struct Row {
    WPARAM wParam;
    LPARAM lParam;
    const wchar_t* call;
    LRESULT answer;
  } rows[] = {
      {1, 0, L"old", 1},
      {2, 0, L"qualified", 1},
      {3, 0, L"qualified", 1},
      {MAKEWPARAM(2, 1), 0, L"qualified", 1},  // from an accelerator
      {9, 0, L"", 0},
      {10, 0, L"range 10", 1},
      {19, 0, L"range 19", 1},
      {20, 0, L"", 0},
      {30, 0, L"ex 30", 0},  // the handler said no
      {MAKEWPARAM(40, BN_CLICKED), control, L"qualified", 1},
      {MAKEWPARAM(40, BN_SETFOCUS), control, L"", 0},
      {MAKEWPARAM(50, EN_CHANGE), control, L"change", 1},
      {MAKEWPARAM(50, EN_UPDATE), control, L"", 0},
      {MAKEWPARAM(51, EN_CHANGE), control, L"", 0},
  };
  for (const Row& row : rows) {
    window.log.clear();
    EXPECT_EQ(row.answer, window.SendMessage(WM_COMMAND, row.wParam, row.lParam)) << row.wParam;
    EXPECT_EQ(row.call, window.log.empty() ? L"" : window.log.back()) << row.wParam;
  }
}

TEST(Commands, NotificationsCarryTheirAnswer) {
  CommandWindow window;
  ASSERT_TRUE(window.Make());
  NMHDR click = {nullptr, 60, static_cast<UINT>(NM_CLICK)};
  EXPECT_EQ(31, window.SendMessage(WM_NOTIFY, 60, reinterpret_cast<LPARAM>(&click)));
  EXPECT_EQ(std::vector<std::wstring>{L"notify 60"}, window.log);
  click.code = static_cast<UINT>(NM_DBLCLK);
  EXPECT_EQ(0, window.SendMessage(WM_NOTIFY, 60, reinterpret_cast<LPARAM>(&click)));
  EXPECT_EQ(0, window.SendMessage(WM_NOTIFY, 60, 0)) << "no header";
}

TEST(Commands, AskingForTheHandlerCallsNothing) {
  CommandWindow window;
  AFX_CMDHANDLERINFO info;
  EXPECT_TRUE(window.OnCmdMsg(1, CN_COMMAND, nullptr, &info));
  EXPECT_EQ(&window, info.pTarget);
  EXPECT_TRUE(window.log.empty());
  EXPECT_FALSE(window.OnCmdMsg(99, CN_COMMAND, nullptr, &info));
}

class OverridingParent : public FrameWindow {
 public:
  std::vector<WPARAM> seen;

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
    seen.push_back(wParam);
    return CWnd::OnCommand(wParam, lParam);
  }
};

TEST(Commands, OnCommandSeesThemFirst) {
  OverridingParent parent;
  ASSERT_TRUE(parent.Make());
  CButton button;
  ASSERT_TRUE(button.Create(L"", 0, CRect(0, 0, 20, 20), &parent, 7));
  button.SendMessage(BM_CLICK);
  EXPECT_NE(std::find(parent.seen.begin(), parent.seen.end(), MAKEWPARAM(7, BN_CLICKED)),
            parent.seen.end());
}

class ReflectingButton : public CButton {
 public:
  int clicks = 0;
  void OnClicked() { ++clicks; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ReflectingButton, CButton)
ON_CONTROL_REFLECT(BN_CLICKED, &ReflectingButton::OnClicked)
END_MESSAGE_MAP()

TEST(Commands, ControlMayAnswerItsOwnNotification) {
  CommandWindow parent;
  ASSERT_TRUE(parent.Make());
  ReflectingButton button;
  ASSERT_TRUE(button.Create(L"", 0, CRect(0, 0, 20, 20), &parent, 40));
  button.SendMessage(BM_CLICK);
  EXPECT_EQ(1, button.clicks);
  EXPECT_TRUE(parent.log.empty());
}

}  // namespace
