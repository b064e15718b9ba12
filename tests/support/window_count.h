// How many windows there are.
#pragma once

#include <windows.h>

namespace tavix::test {

// Of this thread, with their children.
inline int CountWindows() {
  int count = 0;
  constexpr WNDENUMPROC kCountOne = [](HWND, LPARAM counter) -> BOOL {
    ++*reinterpret_cast<int*>(counter);
    return TRUE;
  };
  constexpr WNDENUMPROC kCountTree = [](HWND window, LPARAM counter) -> BOOL {
    ::EnumChildWindows(window, kCountOne, counter);
    return kCountOne(window, counter);
  };
  ::EnumThreadWindows(::GetCurrentThreadId(), kCountTree, reinterpret_cast<LPARAM>(&count));
  return count;
}

}  // namespace tavix::test
