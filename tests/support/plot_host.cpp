#include "tests/support/plot_host.h"

#include <gtest/gtest.h>

#include "tests/support/message_pump.h"

namespace tavix::test {
namespace {

constexpr const wchar_t* kClassName = L"TavixTestHost";

void RegisterHostClass(WNDPROC procedure) {
  WNDCLASSW host_class{};
  host_class.lpfnWndProc = procedure;
  host_class.hInstance = ::GetModuleHandleW(nullptr);
  host_class.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
  host_class.lpszClassName = kClassName;
  ::RegisterClassW(&host_class);  // refused from the second time on, as it should be
}

}  // namespace

PlotHost::PlotHost() {
  RegisterHostClass(&PlotHost::Procedure);
  // A popup that is never activated: under Wine any other window waits two seconds for a window
  // manager when it goes, and there is none.
  ::CreateWindowExW(0, kClassName, L"host", WS_POPUP, 0, 0, 1000, 800, nullptr, nullptr,
                    ::GetModuleHandleW(nullptr), this);
  EXPECT_NE(nullptr, window_);
  ::ShowWindow(window_, SW_SHOWNOACTIVATE);
  ::UpdateWindow(window_);
  EXPECT_TRUE(PumpUntil([this] { return painted_; }));
}

PlotHost::~PlotHost() { Destroy(); }

HWND PlotHost::AddControl(int id, const RECT& place) {
  return ::CreateWindowExW(0, L"STATIC", L"place", WS_CHILD | WS_VISIBLE, place.left, place.top,
                           place.right - place.left, place.bottom - place.top, window_,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                           ::GetModuleHandleW(nullptr), nullptr);
}

void PlotHost::Destroy() {
  if (window_) ::DestroyWindow(window_);
}

LRESULT CALLBACK PlotHost::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    auto* fresh = static_cast<PlotHost*>(create->lpCreateParams);
    fresh->window_ = window;
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(fresh));
  }
  auto* host = reinterpret_cast<PlotHost*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  return host ? host->Handle(message, wParam, lParam)
              : ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT PlotHost::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = window_;
  if (message == WM_COMMAND) {
    commands_.push_back({LOWORD(wParam), lParam});
    return 0;
  }
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    window_ = nullptr;
  }
  const LRESULT result = ::DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_PAINT) painted_ = true;
  return result;
}

}  // namespace tavix::test
