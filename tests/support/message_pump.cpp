#include "tests/support/message_pump.h"

#include <afxwin.h>

namespace tavix::test {
namespace {

constexpr ULONGLONG kPatience = 10'000;  // milliseconds

}  // namespace

void DrainMessages() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (AfxPreTranslateMessage(&message)) continue;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

bool PumpUntil(const std::function<bool()>& condition) {
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  for (;;) {
    DrainMessages();
    if (condition()) return true;
    const ULONGLONG now = ::GetTickCount64();
    if (now >= end) return false;
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
  }
}

}  // namespace tavix::test
