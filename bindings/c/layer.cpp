// The calls of the layer itself.
#include <afxwin.h>
#include <tavix/tavix_c.h>

#include <algorithm>

#include "bindings/c/guarded_call.h"
#include "bindings/c/last_error.h"
#include "bindings/c/text_output.h"

namespace {

constexpr char kPreTranslate[] = "TavixC_PreTranslate";

bool IsOfAnotherThread(HWND window) {
  const DWORD owner = ::GetWindowThreadProcessId(window, nullptr);
  return owner != 0 && owner != ::GetCurrentThreadId();
}

}  // namespace

int TAVIX_C_CDECL TavixC_Version(void) {
  return TAVIX_VERSION_MAJOR * 10000 + TAVIX_VERSION_MINOR * 100 + TAVIX_VERSION_PATCH;
}

int TAVIX_C_CDECL TavixC_LastError(wchar_t* text, int capacity, int* length) {
  const tavix_c::TextOutput output{text, capacity, length};
  if (!output.IsGiven()) return TAVIX_C_NULL_OUTPUT;
  output.Write(tavix_c::KeptReason());
  return 0;
}

int TAVIX_C_CDECL TavixC_PreTranslate(void* message) {
  auto* const given = static_cast<MSG*>(message);
  if (given && IsOfAnotherThread(given->hwnd)) {
    tavix_c::KeepReason(kPreTranslate, L"the message is for a window of another thread");
    return 0;
  }
  const int taken = tavix_c::On({kPreTranslate, std::nullopt, true}, given != nullptr,
                                [given] { return AfxPreTranslateMessage(given) ? 1 : 0; });
  return std::max(taken, 0);  // a refusal has taken nothing
}
