// Another process, contained: what it gets from this one, and that it ends.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "tests/host/support/owned_handle.h"

namespace fieldhost {

// A file as a process started from here inherits it.
[[nodiscard]] HANDLE OpenForChild(const std::filesystem::path& file, DWORD access, DWORD creation);

// A process in a job of its own, with these standard handles and no other handle of this process.
// It is ended, with everything it started, when the object goes or this process ends.
class ChildProcess {
 public:
  struct Files {
    HANDLE input;
    HANDLE output;
    HANDLE errors;
  };

  ChildProcess(std::wstring command_line, const Files& files);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  // Null where it could not be started: then StartError says why.
  [[nodiscard]] HANDLE Get() const { return process_; }
  [[nodiscard]] DWORD Id() const { return id_; }
  [[nodiscard]] DWORD StartError() const { return start_error_; }

  // Whether what it starts is ended with it.
  [[nodiscard]] bool IsContained() const { return is_contained_; }

  // Whether it ended within so many milliseconds.
  [[nodiscard]] bool EndsWithin(DWORD milliseconds) const;

  // Of a process that has ended.
  [[nodiscard]] DWORD Code() const;

  // Ends it and everything it started.
  void End() const;

 private:
  OwnedHandle job_;
  HANDLE process_ = nullptr;
  DWORD id_ = 0;
  DWORD start_error_ = 0;
  bool is_contained_ = false;
};

}  // namespace fieldhost
