// How often the library draws the picture of a plot window.
#pragma once

#include <windows.h>

namespace tavix::test {

// While it lives, counts the full redraws of all plot windows: each begins by filling the back
// buffer, and tavix.dll's import of FillRect goes through here. One at a time.
class RedrawCount {
 public:
  RedrawCount();
  ~RedrawCount();
  RedrawCount(const RedrawCount&) = delete;
  RedrawCount& operator=(const RedrawCount&) = delete;

  // Since it was made, or since the last call.
  int Take();

 private:
  using Function = decltype(&::FillRect);

  static int WINAPI Counted(HDC dc, const RECT* rect, HBRUSH brush);
  static void Redirect(Function* entry, Function function);

  static inline RedrawCount* active_ = nullptr;
  Function* entry_ = nullptr;
  Function original_ = nullptr;
  int count_ = 0;
};

}  // namespace tavix::test
