#include "tests/host/support/child_process.h"

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

namespace fieldhost {
namespace {

constexpr UINT kEndedCode = 3;      // of a process that was ended
constexpr DWORD kPatience = 60000;  // milliseconds that the end of an ended process may take

// The handles that a child gets, and no others.
class HandleList {
 public:
  explicit HandleList(std::vector<HANDLE> handles) : handles_(std::move(handles)) {
    // A handle that serves twice stands in the list once, or Windows refuses the list.
    std::sort(handles_.begin(), handles_.end());
    handles_.erase(std::unique(handles_.begin(), handles_.end()), handles_.end());
    SIZE_T size = 0;
    ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    bytes_.resize(size);
    ::InitializeProcThreadAttributeList(Get(), 1, 0, &size);
    ::UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                handles_.size() * sizeof(HANDLE), nullptr, nullptr);
  }
  ~HandleList() { ::DeleteProcThreadAttributeList(Get()); }
  HandleList(const HandleList&) = delete;
  HandleList& operator=(const HandleList&) = delete;

  [[nodiscard]] LPPROC_THREAD_ATTRIBUTE_LIST Get() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(bytes_.data());
  }

 private:
  std::vector<HANDLE> handles_;
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

}  // namespace

HANDLE OpenForChild(const std::filesystem::path& file, DWORD access, DWORD creation) {
  SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
  return ::CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                       creation, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// Into the job before its first step.
ChildProcess::ChildProcess(std::wstring command_line, const Files& files)
    : job_(CreateEndingJob()) {
  // Starts the desktop's own process where it does not run yet. Started by the child, it would
  // inherit the child's files, and end with it.
  ::GetDesktopWindow();
  HandleList handles({files.input, files.output, files.errors});
  STARTUPINFOEXW startup = {};
  startup.StartupInfo.cb = sizeof(startup);
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdInput = files.input;
  startup.StartupInfo.hStdOutput = files.output;
  startup.StartupInfo.hStdError = files.errors;
  startup.lpAttributeList = handles.Get();
  PROCESS_INFORMATION information = {};
  // Wine refuses a start now and then; what is tested begins with the child's first step.
  constexpr int kStarts = 3;
  for (int i = 1; !::CreateProcessW(nullptr, command_line.data(), nullptr, nullptr, TRUE,
                                    CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT, nullptr,
                                    nullptr, &startup.StartupInfo, &information);
       ++i) {
    start_error_ = ::GetLastError();
    std::fprintf(stderr, "Start %d of a program: error %lu\n", i, start_error_);
    if (i == kStarts) return;
  }
  start_error_ = 0;
  process_ = information.hProcess;
  id_ = information.dwProcessId;
  is_contained_ = ::AssignProcessToJobObject(job_.Get(), process_);
  ::ResumeThread(information.hThread);
  ::CloseHandle(information.hThread);
}

ChildProcess::~ChildProcess() {
  if (!process_) return;
  End();
  (void)EndsWithin(kPatience);
  ::CloseHandle(process_);
}

bool ChildProcess::EndsWithin(DWORD milliseconds) const {
  return ::WaitForSingleObject(process_, milliseconds) == WAIT_OBJECT_0;
}

DWORD ChildProcess::Code() const {
  DWORD code = 0;
  ::GetExitCodeProcess(process_, &code);
  return code;
}

void ChildProcess::End() const {
  ::TerminateJobObject(job_.Get(), kEndedCode);
  if (!is_contained_) ::TerminateProcess(process_, kEndedCode);
}

}  // namespace fieldhost
