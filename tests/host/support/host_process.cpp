#include "tests/host/support/host_process.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "tests/host/support/process_report.h"

namespace fieldhost {
namespace {

constexpr DWORD kPatience = 60000;  // milliseconds; only a host that hangs takes so long
constexpr UINT kEndedCode = 3;      // of a host that was ended

// No argument of these tests holds a quote.
std::wstring CommandLineOf(const std::filesystem::path& program,
                           const std::vector<std::wstring>& arguments) {
  std::wstring line = L'"' + program.wstring() + L'"';
  for (const std::wstring& argument : arguments) line += L" \"" + argument + L'"';
  return line;
}

HANDLE OpenForChild(const std::filesystem::path& file, DWORD access, DWORD creation) {
  SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
  return ::CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                       creation, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// The handles that a child gets, and no others.
class HandleList {
 public:
  explicit HandleList(std::array<HANDLE, 3> handles) : handles_(handles) {
    SIZE_T size = 0;
    ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    bytes_.resize(size);
    ::InitializeProcThreadAttributeList(Get(), 1, 0, &size);
    ::UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                sizeof(handles_), nullptr, nullptr);
  }
  ~HandleList() { ::DeleteProcThreadAttributeList(Get()); }
  HandleList(const HandleList&) = delete;
  HandleList& operator=(const HandleList&) = delete;

  [[nodiscard]] LPPROC_THREAD_ATTRIBUTE_LIST Get() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(bytes_.data());
  }

 private:
  std::array<HANDLE, 3> handles_;
  std::vector<char> bytes_;
};

// Ends with its last handle, and everything in it too.
HANDLE CreateEndingJob() {
  const HANDLE job = ::CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  ::SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits));
  return job;
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

std::filesystem::path HostProgram() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::filesystem::path(path).parent_path() / L"fieldhost.exe";
}

HostProcess::HostProcess(const std::filesystem::path& folder,
                         const std::vector<std::wstring>& arguments, const HostStart& start)
    : folder_(folder),
      job_(CreateEndingJob()),
      gone_(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  // Starts the desktop's own process where it does not run yet. Started by the host, it would
  // inherit the host's files, and end with it.
  ::GetDesktopWindow();
  Start(start, arguments);
  if (process_) watch_ = std::thread(&HostProcess::WatchOver, this, start.longest_life);
}

// Into the job before its first step.
void HostProcess::Start(const HostStart& start, const std::vector<std::wstring>& arguments) {
  const OwnedHandle input(OpenForChild(L"NUL", GENERIC_READ, OPEN_EXISTING));
  const OwnedHandle output(OpenForChild(folder_ / L"output.txt", GENERIC_WRITE, CREATE_ALWAYS));
  const OwnedHandle errors(OpenForChild(folder_ / L"errors.txt", GENERIC_WRITE, CREATE_ALWAYS));
  HandleList handles({input.Get(), output.Get(), errors.Get()});
  STARTUPINFOEXW startup = {};
  startup.StartupInfo.cb = sizeof(startup);
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdInput = input.Get();
  startup.StartupInfo.hStdOutput = output.Get();
  startup.StartupInfo.hStdError = errors.Get();
  startup.lpAttributeList = handles.Get();
  PROCESS_INFORMATION information = {};
  std::wstring line = CommandLineOf(start.program, arguments);
  // Wine refuses a start now and then; what is tested begins with the host's first step.
  constexpr int kStarts = 3;
  for (int i = 1; !::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE,
                                    CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT, nullptr,
                                    nullptr, &startup.StartupInfo, &information);
       ++i) {
    std::fprintf(stderr, "Start %d of the host: error %lu\n", i, ::GetLastError());
    if (i == kStarts) return;
  }
  process_ = information.hProcess;
  id_ = information.dwProcessId;
  EXPECT_TRUE(::AssignProcessToJobObject(job_.Get(), process_));
  ::ResumeThread(information.hThread);
  ::CloseHandle(information.hThread);
}

HostProcess::~HostProcess() {
  if (!process_) return;
  ::SetEvent(gone_.Get());
  watch_.join();
  ::TerminateJobObject(job_.Get(), kEndedCode);
  ::WaitForSingleObject(process_, kPatience);
  ::CloseHandle(process_);
}

void HostProcess::WatchOver(DWORD longest_life) const {
  const std::array<HANDLE, 2> ends = {gone_.Get(), process_};
  if (::WaitForMultipleObjects(2, ends.data(), FALSE, longest_life) != WAIT_TIMEOUT) return;
  std::fprintf(stderr, "Ended, for it took too long: %s", ReportOn(id_).c_str());
  ::TerminateJobObject(job_.Get(), kEndedCode);
}

int HostProcess::Wait() {
  DWORD code = 0;
  if (!process_) return -1;
  if (::WaitForSingleObject(process_, kPatience) != WAIT_OBJECT_0) {
    ADD_FAILURE() << "The host does not end: " << ReportOn(id_);
    return -1;
  }
  return ::GetExitCodeProcess(process_, &code) ? static_cast<int>(code) : -1;
}

std::string HostProcess::Output() const { return TextOf(folder_ / L"output.txt"); }

std::string HostProcess::Errors() const { return TextOf(folder_ / L"errors.txt"); }

HWND HostProcess::WaitForWindow(const wchar_t* title) {
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  while (process_ && ::GetTickCount64() < end) {
    Search search{id_, title, nullptr};
    ::EnumWindows(CompareWindow, reinterpret_cast<LPARAM>(&search));
    if (search.found) return search.found;
    if (::WaitForSingleObject(process_, 20) == WAIT_OBJECT_0) {
      ADD_FAILURE() << "The host has ended: " << Errors();
      return nullptr;
    }
  }
  ADD_FAILURE() << "The host does not show " << std::filesystem::path(title).string() << ": "
                << ReportOn(id_);
  return nullptr;
}

}  // namespace fieldhost
