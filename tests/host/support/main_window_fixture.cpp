#include "tests/host/support/main_window_fixture.h"

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

int WidthOf(HWND window) {
  RECT rect = {};
  ::GetWindowRect(window, &rect);
  return rect.right - rect.left;
}

// From the screen: only a process of its own can read what a window shows.
tavix::test::Picture ShownBy(HWND window) {
  RECT client = {};
  ::GetClientRect(window, &client);
  POINT vertex = {0, 0};
  ::ClientToScreen(window, &vertex);
  const HDC screen = ::GetDC(nullptr);
  ::SetViewportOrgEx(screen, vertex.x, vertex.y, nullptr);
  tavix::test::Picture picture = tavix::test::TakePicture(screen, client.right, client.bottom);
  ::ReleaseDC(nullptr, screen);
  return picture;
}

void Tap(HWND window, int x, int y) {
  ::PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  ::PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void WindowTest::Open(const std::vector<std::wstring>& arguments) {
  host_.emplace(folder_, arguments);
  window_ = host_->WaitForWindow(kTitle);
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
  HWND plot = nullptr;
  do {
    plot = ::FindWindowExW(window_, plot, nullptr, L"確認図");
  } while (plot && !::IsWindowVisible(plot));
  return plot;
}

void WindowTest::TapTab(int tab) const {
  constexpr int kTabWidth = 60;
  Tap(Tabs(), tab * kTabWidth + kTabWidth / 2, 10);
}

int WindowTest::CountColour(std::uint32_t colour) const {
  return tavix::test::CountPixels(Shown(), colour);
}

void WindowTest::ExpectColour(std::uint32_t colour, int pixels) const {
  EXPECT_TRUE(WaitUntil([&] { return CountColour(colour) >= pixels; }))
      << CountColour(colour) << " pixels of colour " << std::hex << colour;
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
  EXPECT_TRUE(WaitUntil([&] { return Plot() && Plot() != before; }));
}

void WindowTest::Exit() {
  PostCommand(ID_SURVEY_EXIT);
  EXPECT_EQ(0, host_->Wait());
}

}  // namespace fieldhost
