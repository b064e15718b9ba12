// Runs the sample host as a user or a script would, in a process of its own.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

namespace fieldhost {

// A system handle, closed at the end.
class OwnedHandle {
 public:
  explicit OwnedHandle(HANDLE handle = nullptr) : handle_(handle) {}
  ~OwnedHandle();
  OwnedHandle(const OwnedHandle&) = delete;
  OwnedHandle& operator=(const OwnedHandle&) = delete;

  [[nodiscard]] HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

// The host, started with arguments; what it prints goes to files in `folder`. A host that still
// runs when the object goes is ended.
class HostProcess {
 public:
  HostProcess(const std::filesystem::path& folder, const std::vector<std::wstring>& arguments);
  ~HostProcess();
  HostProcess(const HostProcess&) = delete;
  HostProcess& operator=(const HostProcess&) = delete;

  // Waits for the end. The exit code; -1 when the host could not be started or does not end.
  int Wait();
  // After Wait.
  [[nodiscard]] std::string Output() const;
  [[nodiscard]] std::string Errors() const;

  // The visible top-level window of this title, waited for; null when none comes.
  [[nodiscard]] HWND WaitForWindow(const wchar_t* title);

 private:
  std::filesystem::path folder_;
  HANDLE process_ = nullptr;
  DWORD id_ = 0;
};

}  // namespace fieldhost
