#include "tests/support/plot_input.h"

#include <gtest/gtest.h>
#include <tavix/tavix.h>

#include "tests/support/message_pump.h"

namespace tavix::test {
namespace {

void PostAt(UINT message, WPARAM keys, POINT at) {
  ASSERT_TRUE(::PostMessageW(Tavix_Wnd()->m_hWnd, message, keys, MAKELPARAM(at.x, at.y)));
  DrainMessages();
}

}  // namespace

void PutDown(POINT at) { PostAt(WM_LBUTTONDOWN, MK_LBUTTON, at); }
void MoveTo(POINT at) { PostAt(WM_MOUSEMOVE, MK_LBUTTON, at); }
void Lift(POINT at) { PostAt(WM_LBUTTONUP, 0, at); }

void Tap(POINT at) {
  PutDown(at);
  Lift(at);
}

void Drag(POINT from, POINT to) {
  PutDown(from);
  MoveTo(to);
  Lift(to);
}

HWND ButtonWindow(unsigned button) {
  return ::GetDlgItem(Tavix_Wnd()->m_hWnd, static_cast<int>(button));
}

void Press(unsigned button) {
  ::SendMessageW(Tavix_Wnd()->m_hWnd, WM_COMMAND, button,
                 reinterpret_cast<LPARAM>(ButtonWindow(button)));
  DrainMessages();
}

void PressKey(int key, HWND focus) {
  ASSERT_TRUE(::PostMessageW(focus, WM_KEYDOWN, static_cast<WPARAM>(key), 1));
  DrainMessages();
}

}  // namespace tavix::test
