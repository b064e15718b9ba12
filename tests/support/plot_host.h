// The window of a host application: a plain Win32 one, as hosts without the framework have.
#pragma once

#include <afxwin.h>

#include <vector>

namespace tavix::test {

// A visible top-level window that records the commands posted or sent to it. It is on the screen,
// and painted, when the constructor returns.
class PlotHost {
 public:
  struct Command {
    UINT id;
    LPARAM value;

    friend bool operator==(const Command&, const Command&) = default;
  };

  PlotHost();
  ~PlotHost();
  PlotHost(const PlotHost&) = delete;
  PlotHost& operator=(const PlotHost&) = delete;

  // Null once the window is destroyed.
  [[nodiscard]] HWND Window() const { return window_; }
  [[nodiscard]] CWnd* AsParent() const { return CWnd::FromHandle(window_); }

  // Adds a visible child control; `place` is in client pixels.
  HWND AddControl(int id, const RECT& place);

  // Destroys the window with its children.
  void Destroy();

  [[nodiscard]] const std::vector<Command>& Commands() const { return commands_; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
  bool painted_ = false;
  std::vector<Command> commands_;
};

using Commands = std::vector<PlotHost::Command>;

}  // namespace tavix::test
