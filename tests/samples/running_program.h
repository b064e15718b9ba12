// A program with a plot in its window, in a process of its own: what it shows, and what a user
// does.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tests/host/support/host_process.h"
#include "tests/support/window_picture.h"

namespace fieldhost {

// A program of the build, which stands beside this one.
[[nodiscard]] std::filesystem::path InBuild(const std::wstring& program);

// Waits until `condition` holds of another process, which sends no message here when it does.
[[nodiscard]] bool WaitUntil(const std::function<bool()>& condition);

// Where a window's client area lies on the screen.
[[nodiscard]] RECT ClientOnScreen(HWND window);

// What the screen shows of `area`, in pixels of the screen; another process's window has no pixels
// here. Parts of a window paint themselves in their own time.
[[nodiscard]] tavix::test::Picture OnScreen(const RECT& area);

class RunningProgram {
 public:
  struct Start {
    std::filesystem::path program;
    std::vector<std::wstring> arguments = {};
    const wchar_t* title;  // of its window
    std::size_t plots = 1;
  };

  // Waits until the window and its plots show. What the program prints goes to files in `folder`.
  RunningProgram(const std::filesystem::path& folder, const Start& start);
  ~RunningProgram();

  [[nodiscard]] HWND Window() const { return window_; }
  // From left to right.
  [[nodiscard]] HWND Plot(std::size_t number = 0) const { return Plots().at(number); }

  // At a pixel of a plot.
  static void Tap(HWND plot, POINT at);
  // Waits for a title of the window.
  [[nodiscard]] bool Says(const std::wstring& title) const;
  // Gives the window another size, and waits for the new plot.
  void Resize(int width, int height) const;
  // Closes the window; the program's exit code.
  [[nodiscard]] int Close();

  // A plot left of its buttons, as the screen shows it.
  [[nodiscard]] static tavix::test::Picture Shown(HWND plot);

 private:
  [[nodiscard]] std::vector<HWND> Plots() const;

  HostProcess process_;
  HWND window_;
};

}  // namespace fieldhost
