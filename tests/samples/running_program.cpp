#include "tests/samples/running_program.h"

#include <gtest/gtest.h>
#include <tavix/tavix.h>

#include <algorithm>

#include "tests/support/message_pump.h"

namespace fieldhost {
namespace {

std::wstring TitleOf(HWND window) {
  wchar_t text[200] = L"";
  ::GetWindowTextW(window, text, 200);
  return text;
}

LONG LeftOf(HWND window) {
  RECT place{};
  ::GetWindowRect(window, &place);
  return place.left;
}

}  // namespace

std::filesystem::path InBuild(const std::wstring& program) {
  return HostProgram().parent_path() / program;
}

bool WaitUntil(const std::function<bool()>& condition) {
  constexpr ULONGLONG kPatience = 20'000;  // milliseconds
  constexpr DWORD kLook = 10;
  for (const ULONGLONG end = ::GetTickCount64() + kPatience; ::GetTickCount64() < end;) {
    tavix::test::DrainMessages();
    if (condition()) return true;
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kLook, QS_ALLINPUT);
  }
  return false;
}

RECT ClientOnScreen(HWND window) {
  RECT client;
  ::GetClientRect(window, &client);
  ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
  return client;
}

tavix::test::Picture OnScreen(const RECT& area) {
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  const HDC screen = ::GetDC(nullptr);
  const HDC memory = ::CreateCompatibleDC(screen);
  const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ old = ::SelectObject(memory, bitmap);
  ::BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
  tavix::test::Picture picture = tavix::test::TakePicture(memory, width, height);
  ::SelectObject(memory, old);
  ::DeleteObject(bitmap);
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  return picture;
}

RunningProgram::RunningProgram(const std::filesystem::path& folder, const Start& start)
    : process_(folder, start.arguments, {.program = start.program}),
      window_(process_.WaitForWindow(start.title)) {
  EXPECT_TRUE(WaitUntil([&] { return Plots().size() == start.plots; }));
}

RunningProgram::~RunningProgram() { ::PostMessageW(window_, WM_CLOSE, 0, 0); }

std::vector<HWND> RunningProgram::Plots() const {
  std::vector<HWND> plots;
  for (HWND child = ::GetWindow(window_, GW_CHILD); child;
       child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (::IsWindowVisible(child)) plots.push_back(child);
  }
  std::sort(plots.begin(), plots.end(), [](HWND a, HWND b) { return LeftOf(a) < LeftOf(b); });
  return plots;
}

void RunningProgram::Tap(HWND plot, POINT at) {
  const LPARAM place = MAKELPARAM(at.x, at.y);
  ::PostMessageW(plot, WM_LBUTTONDOWN, MK_LBUTTON, place);
  ::PostMessageW(plot, WM_LBUTTONUP, 0, place);
}

bool RunningProgram::Says(const std::wstring& title) const {
  return WaitUntil([&] { return TitleOf(window_) == title; });
}

void RunningProgram::Resize(int width, int height) const {
  const std::vector<HWND> before = Plots();
  ::SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_TRUE(WaitUntil([&] {
    const std::vector<HWND> now = Plots();
    return now.size() == before.size() && std::none_of(before.begin(), before.end(), [&](HWND old) {
             return std::find(now.begin(), now.end(), old) != now.end();
           });
  }));
}

int RunningProgram::Close() {
  ::PostMessageW(window_, WM_CLOSE, 0, 0);
  return process_.Wait();
}

tavix::test::Picture RunningProgram::Shown(HWND plot) {
  RECT client = ClientOnScreen(plot);
  client.right -= kTavixButtonColumn;
  return OnScreen(client);
}

}  // namespace fieldhost
