#include "tests/host/support/host_process.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "tests/host/support/process_report.h"
#include "tests/support/program_folder.h"

namespace fieldhost {
namespace {

constexpr DWORD kPatience = 60000;  // milliseconds; only a host that hangs takes so long

// No argument of these tests holds a quote.
std::wstring CommandLineOf(const std::filesystem::path& program,
                           const std::vector<std::wstring>& arguments) {
  std::wstring line = L'"' + program.wstring() + L'"';
  for (const std::wstring& argument : arguments) line += L" \"" + argument + L'"';
  return line;
}

std::string TextOf(const std::filesystem::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

struct Search {
  DWORD process;
  const wchar_t* title;
  HWND found;
};

BOOL CALLBACK CompareWindow(HWND window, LPARAM search_address) {
  auto& search = *reinterpret_cast<Search*>(search_address);
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  wchar_t title[100] = {};
  if (process != search.process || !::IsWindowVisible(window)) return TRUE;
  ::GetWindowTextW(window, title, static_cast<int>(std::size(title)));
  if (std::wstring(title) != search.title) return TRUE;
  search.found = window;
  return FALSE;
}

}  // namespace

std::filesystem::path HostProgram() { return tavix::test::BesideProgram(L"fieldhost.exe"); }

HostProcess::HostProcess(const std::filesystem::path& folder,
                         const std::vector<std::wstring>& arguments, const HostStart& start)
    : folder_(folder), gone_(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  const OwnedHandle input(OpenForChild(L"NUL", GENERIC_READ, OPEN_EXISTING));
  const OwnedHandle output(OpenForChild(folder_ / L"output.txt", GENERIC_WRITE, CREATE_ALWAYS));
  const OwnedHandle errors(OpenForChild(folder_ / L"errors.txt", GENERIC_WRITE, CREATE_ALWAYS));
  host_.emplace(CommandLineOf(start.program, arguments),
                ChildProcess::Files{input.Get(), output.Get(), errors.Get()});
  if (!host_->Get()) return;
  EXPECT_TRUE(host_->IsContained());
  watch_ = std::thread(&HostProcess::WatchOver, this, start.longest_life);
}

HostProcess::~HostProcess() {
  if (!host_->Get()) return;
  ::SetEvent(gone_.Get());
  watch_.join();
}

void HostProcess::WatchOver(DWORD longest_life) const {
  const std::array<HANDLE, 2> ends = {gone_.Get(), host_->Get()};
  if (::WaitForMultipleObjects(2, ends.data(), FALSE, longest_life) != WAIT_TIMEOUT) return;
  std::fprintf(stderr, "Ended, for it took too long: %s", ReportOn(host_->Id()).c_str());
  host_->End();
}

int HostProcess::Wait() {
  if (!host_->Get()) return -1;
  if (!host_->EndsWithin(kPatience)) {
    ADD_FAILURE() << "The host does not end: " << ReportOn(host_->Id());
    return -1;
  }
  return static_cast<int>(host_->Code());
}

std::string HostProcess::Output() const { return TextOf(folder_ / L"output.txt"); }

std::string HostProcess::Errors() const { return TextOf(folder_ / L"errors.txt"); }

HWND HostProcess::WaitForWindow(const wchar_t* title) {
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  while (host_->Get() && ::GetTickCount64() < end) {
    Search search{host_->Id(), title, nullptr};
    ::EnumWindows(CompareWindow, reinterpret_cast<LPARAM>(&search));
    if (search.found) return search.found;
    if (host_->EndsWithin(20)) {
      ADD_FAILURE() << "The host has ended: " << Errors();
      return nullptr;
    }
  }
  ADD_FAILURE() << "The host does not show " << std::filesystem::path(title).string() << ": "
                << ReportOn(host_->Id());
  return nullptr;
}

}  // namespace fieldhost
