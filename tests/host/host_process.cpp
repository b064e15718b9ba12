#include "tests/host/host_process.h"

#include <fstream>
#include <iterator>

namespace fieldhost {
namespace {

constexpr DWORD kPatience = 60000;  // milliseconds; only a host that hangs takes so long

std::filesystem::path HostProgram() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::filesystem::path(path).parent_path() / L"fieldhost.exe";
}

// No argument of these tests holds a quote.
std::wstring CommandLineOf(const std::vector<std::wstring>& arguments) {
  std::wstring line = L'"' + HostProgram().wstring() + L'"';
  for (const std::wstring& argument : arguments) line += L" \"" + argument + L'"';
  return line;
}

HANDLE CreateForChild(const std::filesystem::path& file) {
  SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
  return ::CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
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

OwnedHandle::~OwnedHandle() {
  if (handle_ && handle_ != INVALID_HANDLE_VALUE) ::CloseHandle(handle_);
}

HostProcess::HostProcess(const std::filesystem::path& folder,
                         const std::vector<std::wstring>& arguments)
    : folder_(folder) {
  // Starts the desktop's own process where it does not run yet. Started by the host, it would
  // inherit the host's files and keep them open.
  ::GetDesktopWindow();
  const OwnedHandle output(CreateForChild(folder_ / L"output.txt"));
  const OwnedHandle errors(CreateForChild(folder_ / L"errors.txt"));
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = output.Get();
  startup.hStdError = errors.Get();
  PROCESS_INFORMATION information = {};
  std::wstring line = CommandLineOf(arguments);
  if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &information)) {
    return;
  }
  ::CloseHandle(information.hThread);
  process_ = information.hProcess;
  id_ = information.dwProcessId;
}

HostProcess::~HostProcess() {
  if (!process_) return;
  if (::WaitForSingleObject(process_, 0) != WAIT_OBJECT_0) {
    ::TerminateProcess(process_, 1);
    ::WaitForSingleObject(process_, kPatience);
  }
  ::CloseHandle(process_);
}

int HostProcess::Wait() {
  DWORD code = 0;
  if (!process_ || ::WaitForSingleObject(process_, kPatience) != WAIT_OBJECT_0 ||
      !::GetExitCodeProcess(process_, &code)) {
    return -1;
  }
  return static_cast<int>(code);
}

std::string HostProcess::Output() const { return TextOf(folder_ / L"output.txt"); }

std::string HostProcess::Errors() const { return TextOf(folder_ / L"errors.txt"); }

HWND HostProcess::WaitForWindow(const wchar_t* title) {
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  while (process_ && ::GetTickCount64() < end) {
    Search search{id_, title, nullptr};
    ::EnumWindows(CompareWindow, reinterpret_cast<LPARAM>(&search));
    if (search.found) return search.found;
    // Ended: no window will come.
    if (::WaitForSingleObject(process_, 20) == WAIT_OBJECT_0) return nullptr;
  }
  return nullptr;
}

}  // namespace fieldhost
