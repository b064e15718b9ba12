#include "tests/figure/second_program.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/support/program_folder.h"

namespace tavix::test {
namespace {

constexpr DWORD kPatience = 60000;  // milliseconds; only a program that hangs takes so long

struct Pipe {
  HANDLE reading = nullptr;
  HANDLE writing = nullptr;
};

// Of which the other process gets both ends but `own`.
Pipe MakePipe(HANDLE Pipe::*own) {
  Pipe pipe;
  SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
  EXPECT_TRUE(::CreatePipe(&pipe.reading, &pipe.writing, &inherited, 0));
  EXPECT_TRUE(::SetHandleInformation(pipe.*own, HANDLE_FLAG_INHERIT, 0));
  return pipe;
}

void Close(HANDLE& handle) {
  if (handle) ::CloseHandle(std::exchange(handle, nullptr));
}

}  // namespace

SecondProgram::SecondProgram() {
  // Starts the desktop's own process where it does not run yet: started by the other program, it
  // would inherit the pipes and keep them open.
  ::GetDesktopWindow();
  Pipe input = MakePipe(&Pipe::writing);
  Pipe output = MakePipe(&Pipe::reading);
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = input.reading;
  startup.hStdOutput = output.writing;
  PROCESS_INFORMATION information = {};
  const std::wstring program = BesideProgram(L"second_program.exe").wstring();
  if (::CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                       &startup, &information)) {
    process_ = information.hProcess;
    ::CloseHandle(information.hThread);
  }
  EXPECT_NE(nullptr, process_) << BesideProgram(L"second_program.exe");
  Close(input.reading);
  Close(output.writing);
  commands_ = input.writing;
  answers_ = output.reading;
}

SecondProgram::~SecondProgram() {
  EndByForce();
  Close(commands_);
  Close(answers_);
}

std::string SecondProgram::Ask(const std::string& command) {
  const std::string line = command + "\n";
  DWORD written = 0;
  ::WriteFile(commands_, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  std::string answer;
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  while (::GetTickCount64() < end) {
    DWORD there = 0;
    if (!::PeekNamedPipe(answers_, nullptr, 0, nullptr, &there, nullptr)) return {};
    if (there == 0) {
      ::Sleep(1);
      continue;
    }
    char byte = 0;
    DWORD read = 0;
    ::ReadFile(answers_, &byte, 1, &read, nullptr);
    if (byte == '\n') return answer;
    if (byte != '\r') answer += byte;
  }
  return {};
}

std::filesystem::path SecondProgram::Root() {
  const std::string root = Ask("root");
  return std::filesystem::path(std::u8string(root.begin(), root.end())).parent_path();
}

bool SecondProgram::EndByItself() {
  Close(commands_);
  DWORD code = 1;
  const bool ended = ::WaitForSingleObject(process_, kPatience) == WAIT_OBJECT_0;
  return ended && ::GetExitCodeProcess(process_, &code) && code == 0;
}

void SecondProgram::EndByForce() {
  if (!process_) return;
  ::TerminateProcess(process_, 1);
  ::WaitForSingleObject(process_, kPatience);
  Close(process_);
}

}  // namespace tavix::test
