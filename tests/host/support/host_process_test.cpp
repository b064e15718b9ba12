// The tests' hold on the host: one that hangs is reported and ended, and the tests go on.

#include "tests/host/support/host_process.h"

#include "tests/host/support/main_window_fixture.h"
#include "tests/host/support/process_report.h"

namespace fieldhost {
namespace {

using HostProcessTest = HostTest;

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  return process;
}

TEST_F(HostProcessTest, HostHasNoHandleOfTheTestsBesideItsFiles) {
  SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
  HANDLE read_end = nullptr;
  HANDLE write_end = nullptr;
  ASSERT_TRUE(::CreatePipe(&read_end, &write_end, &inherited, 0));
  const OwnedHandle pipe(read_end);
  HostProcess host(folder_, {});
  ::CloseHandle(write_end);
  ASSERT_TRUE(host.WaitForWindow(kTitle));
  // Nobody can write into the pipe any more, although the host runs.
  EXPECT_FALSE(::PeekNamedPipe(read_end, nullptr, 0, nullptr, nullptr, nullptr));
  EXPECT_EQ(static_cast<DWORD>(ERROR_BROKEN_PIPE), ::GetLastError());
}

TEST_F(HostProcessTest, WhatTheHostStartedEndsWithIt) {
  wchar_t system[MAX_PATH] = {};
  ::GetSystemDirectoryW(system, MAX_PATH);
  HostStart shell;
  shell.program = std::filesystem::path(system) / L"cmd.exe";
  std::optional<HostProcess> host;
  host.emplace(folder_, std::vector<std::wstring>{L"/c", HostProgram().wstring()}, shell);
  HWND window = nullptr;
  ASSERT_TRUE(WaitUntil([&] { return (window = ::FindWindowW(nullptr, kTitle)) != nullptr; }));
  const OwnedHandle started(::OpenProcess(SYNCHRONIZE, FALSE, ProcessOf(window)));
  ASSERT_TRUE(started.Get());
  host.reset();
  EXPECT_TRUE(WaitUntil([&] { return ::WaitForSingleObject(started.Get(), 0) == WAIT_OBJECT_0; }));
}

TEST_F(HostProcessTest, ReportNamesTheWindowsAndWhereEachThreadStands) {
  HostProcess host(folder_, {});
  const HWND window = host.WaitForWindow(kTitle);
  ASSERT_TRUE(window);
  const std::string thread =
      "  thread " + std::to_string(::GetWindowThreadProcessId(window, nullptr)) + ": ";
  std::string report;
  // Whatever it does at this moment, its message loop is below.
  EXPECT_TRUE(WaitUntil([&] {
    report = ReportOn(ProcessOf(window));
    const std::size_t begin = report.find(thread);
    return begin != std::string::npos &&
           report.substr(begin, report.find('\n', begin) - begin).find(" framework.dll+0x") !=
               std::string::npos;
  })) << report;
  EXPECT_NE(std::string::npos, report.find("\"Field survey\"")) << report;
}

// A message to a host that hangs is answered by its end.
TEST_F(HostProcessTest, HostThatDoesNotAnswerIsEnded) {
  HostStart start;
  start.longest_life = 10000;
  HostProcess host(folder_, {}, start);
  const HWND window = host.WaitForWindow(kTitle);
  ASSERT_TRUE(window);
  const OwnedHandle thread(
      ::OpenThread(THREAD_SUSPEND_RESUME, FALSE, ::GetWindowThreadProcessId(window, nullptr)));
  ASSERT_NE(static_cast<DWORD>(-1), ::SuspendThread(thread.Get()));
  EXPECT_EQ(0, ::SendMessageW(window, WM_COMMAND, ID_SURVEY_EXIT, 0));
  EXPECT_EQ(3, host.Wait());
}

}  // namespace
}  // namespace fieldhost
