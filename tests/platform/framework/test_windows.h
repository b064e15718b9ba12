// Windows and waits that several tests need.
#pragma once

#include <afxwin.h>

namespace test {

// Handles messages, with pre-translation, until `reached` or ten seconds are over. Tells which.
template <class Condition>
bool PumpUntil(Condition reached) {
  constexpr DWORD kTooLong = 10000;
  const DWORD start = ::GetTickCount();
  while (!reached()) {
    if (::GetTickCount() - start > kTooLong) return false;
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (AfxPreTranslateMessage(&message)) continue;
      ::TranslateMessage(&message);
      ::DispatchMessageW(&message);
    }
    if (!reached()) ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
  }
  return true;
}

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
