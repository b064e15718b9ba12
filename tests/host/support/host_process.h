// Runs the sample host as a user or a script would, in a process of its own.
#pragma once

#include <windows.h>

#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "tests/host/support/child_process.h"
#include "tests/host/support/owned_handle.h"

namespace fieldhost {

[[nodiscard]] std::filesystem::path HostProgram();

struct HostStart {
  std::filesystem::path program = HostProgram();
  // Milliseconds. A call that waits for a host's answer waits without end when it hangs: it is
  // ended then, and where it stood is printed.
  DWORD longest_life = 180000;
};

// The host, started with arguments; what it prints goes to files in `folder`, and it has no other
// handle of this process. A host that still runs when the object goes, or this process, is ended
// with everything it started. A host that fails to show or to end is a failure of the test, which
// says where it stands.
class HostProcess {
 public:
  HostProcess(const std::filesystem::path& folder, const std::vector<std::wstring>& arguments,
              const HostStart& start = {});
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
  void WatchOver(DWORD longest_life) const;

  std::filesystem::path folder_;
  OwnedHandle gone_;  // set when this object goes
  std::optional<ChildProcess> host_;
  std::thread watch_;
};

}  // namespace fieldhost
