// Windows that several tests need.
#pragma once

#include <afxwin.h>

namespace test {

// A top-level window, not shown.
class FrameWindow : public CWnd {
 public:
  BOOL Make(int width = 200, int height = 150) {
    return CreateEx(0, nullptr, L"frame", WS_OVERLAPPEDWINDOW, 0, 0, width, height, nullptr,
                    nullptr);
  }
};

// A plain window that knows nothing of the framework.
inline HWND MakePlainWindow(HWND parent = nullptr, LPCWSTR className = L"STATIC") {
  return ::CreateWindowExW(0, className, L"plain", parent ? WS_CHILD | WS_VISIBLE : WS_POPUP, 0, 0,
                           50, 40, parent, nullptr, ::GetModuleHandleW(nullptr), nullptr);
}

}  // namespace test
