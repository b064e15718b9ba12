// Messages of exceptions into a caller's buffer.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cwchar>

#include "framework/platform.h"

// Cut to `maxCount` characters with the closing NUL. FALSE, and nothing written, for no room.
inline BOOL CopyMessage(LPCWSTR message, LPWSTR text, UINT maxCount) {
  if (maxCount == 0) return FALSE;
  const std::size_t count = std::min<std::size_t>(std::wcslen(message), maxCount - 1);
  std::copy_n(message, count, text);
  text[count] = L'\0';
  return TRUE;
}
