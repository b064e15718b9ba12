// Who sees an input message before it is dispatched.

#include <gtest/gtest.h>

#include <string>

#include "tests/platform/framework/test_windows.h"
#include "tests/support/message_pump.h"

namespace {

using test::MakePlainWindow;

std::string walked;

class Listener : public CWnd {
 public:
  explicit Listener(char name, bool handles = false) : name_(name), handles_(handles) {}
  BOOL PreTranslateMessage(MSG*) override {
    walked += name_;
    return handles_;
  }

 private:
  char name_;
  bool handles_;
};

struct Family {
  Listener top, child;
  HWND plain = nullptr;  // between the two, without an object
  Listener grandchild;
  Family(bool topHandles, bool childHandles, bool grandchildHandles)
      : top('t', topHandles), child('c', childHandles), grandchild('g', grandchildHandles) {
    top.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr);
    child.Create(nullptr, L"", 0, CRect(0, 0, 40, 40), &top, 1);
    plain = MakePlainWindow(child.m_hWnd);
    grandchild.Create(nullptr, L"", 0, CRect(0, 0, 9, 9), CWnd::FromHandle(plain), 1);
  }
};

std::string Walk(HWND window, BOOL* handled) {
  walked.clear();
  MSG message = {window, WM_KEYDOWN, 'A', 1, 0, {}};
  *handled = AfxPreTranslateMessage(&message);
  return walked;
}

TEST(PreTranslation, GoesUpUntilOneHandles) {
  const struct Row {
    bool top, child, grandchild;
    const char* walk;
    const char* walkFromPlain;  // plain windows are walked over
    BOOL handled;
  } rows[] = {{false, false, false, "gct", "ct", FALSE},
              {true, false, false, "gct", "ct", TRUE},
              {false, true, false, "gc", "c", TRUE},
              {true, true, true, "g", "c", TRUE}};
  for (const Row& row : rows) {
    Family family(row.top, row.child, row.grandchild);
    BOOL handled = FALSE;
    EXPECT_EQ(row.walk, Walk(family.grandchild.m_hWnd, &handled));
    EXPECT_EQ(row.handled, handled);
    EXPECT_EQ(row.walkFromPlain, Walk(family.plain, &handled));
  }
}

TEST(PreTranslation, MessagesWithoutWindowAndForeignWindowsPass) {
  BOOL handled = TRUE;
  EXPECT_EQ("", Walk(nullptr, &handled));
  EXPECT_FALSE(handled);
  const HWND plain = MakePlainWindow();
  EXPECT_EQ("", Walk(plain, &handled));
  EXPECT_FALSE(handled);
  ::DestroyWindow(plain);
}

TEST(PreTranslation, PlainLoopDoesNotDispatchWhatWasHandled) {
  class Swallowing : public CWnd {
   public:
    int keys = 0;
    BOOL PreTranslateMessage(MSG* message) override { return message->message == WM_KEYDOWN; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      if (message == WM_KEYDOWN || message == WM_KEYUP) ++keys;
      return CWnd::WindowProc(message, wParam, lParam);
    }
  } window;
  ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
  window.PostMessage(WM_KEYDOWN, 'A', 1);
  window.PostMessage(WM_KEYUP, 'A', 1);
  ASSERT_TRUE(tavix::test::PumpUntil([&] { return window.keys > 0; }));
  EXPECT_EQ(1, window.keys) << "only the one that was not handled";
}

TEST(PreTranslation, ApplicationDecidesWhereThereIsOne) {
  class App : public CWinApp {
   public:
    BOOL PreTranslateMessage(MSG* message) override {
      walked += 'a';
      return CWinApp::PreTranslateMessage(message);
    }
  } app;
  Family family(false, false, false);
  app.m_pMainWnd = &family.top;
  BOOL handled = FALSE;
  EXPECT_EQ("agct", Walk(family.grandchild.m_hWnd, &handled));

  // A window that the main window neither holds nor owns lets the main window's keys work too.
  Listener beside('b');
  beside.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
  EXPECT_EQ("abt", Walk(beside.m_hWnd, &handled));
  Listener owned('o');
  owned.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 9, 9, family.top.m_hWnd, nullptr);
  EXPECT_EQ("aot", Walk(owned.m_hWnd, &handled)) << "once, by way of the owner";
  app.m_pMainWnd = nullptr;
}

}  // namespace
