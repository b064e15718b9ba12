#include "tests/runner/console.h"

#include <windows.h>

#include "tests/runner/utf8.h"

namespace tavix::runner {

void Print(std::wstring_view text) {
  const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  DWORD written = 0;
  if (::GetConsoleMode(output, &mode)) {
    ::WriteConsoleW(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    return;
  }
  const std::string bytes = Utf8(text);
  ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

}  // namespace tavix::runner
