#include "tests/host/window_test.h"

namespace fieldhost {

bool WaitUntil(const std::function<bool()>& condition) {
  constexpr ULONGLONG kPatience = 60000;  // milliseconds
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  while (!condition()) {
    if (::GetTickCount64() > end) return false;
    ::Sleep(20);
  }
  return true;
}

std::wstring TextOf(HWND window) {
  wchar_t text[1000] = {};
  ::SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
  return text;
}

void WindowTest::Open(const std::vector<std::wstring>& arguments) {
  host_.emplace(folder_, arguments);
  window_ = host_->WaitForWindow(L"Field survey");
  ASSERT_TRUE(window_);
}

void WindowTest::ExpectInfo(const std::wstring& text) const {
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Info()) == text; }))
      << "the line shows: " << std::filesystem::path(TextOf(Info())).string();
}

void WindowTest::ExpectInfoBegins(const std::wstring& text) const {
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Info()).starts_with(text); }))
      << "the line shows: " << std::filesystem::path(TextOf(Info())).string();
}

HWND WindowTest::Plot() const {
  for (HWND child = ::GetWindow(window_, GW_CHILD); child;
       child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (child != Info()) return child;
  }
  return nullptr;
}

void WindowTest::Widen(int width) const {
  RECT window = {};
  RECT client = {};
  ::GetWindowRect(window_, &window);
  ::GetClientRect(window_, &client);
  const HWND before = Plot();
  const int frame = window.right - window.left - client.right;
  ::SetWindowPos(window_, nullptr, 0, 0, width + frame, window.bottom - window.top,
                 SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_TRUE(WaitUntil([&] { return Plot() && Plot() != before && ::IsWindowVisible(Plot()); }));
}

void WindowTest::TapPixel(int x, int y) const {
  const LPARAM place = MAKELPARAM(x, y);
  ::PostMessageW(Plot(), WM_LBUTTONDOWN, MK_LBUTTON, place);
  ::PostMessageW(Plot(), WM_LBUTTONUP, 0, place);
}

void WindowTest::Exit() {
  PostCommand(ID_SURVEY_EXIT);
  EXPECT_EQ(host_->Wait(), 0);
}

}  // namespace fieldhost
