#include "draw/drawing_way.h"

#include <windows.h>

#include <string_view>

namespace tavix {

DrawingWay DrawingWayOfEnvironment() {
  wchar_t value[8] = {};  // room for either word
  constexpr DWORD kRoom = static_cast<DWORD>(std::size(value));
  const DWORD length = ::GetEnvironmentVariableW(L"TAVIX_DRAWING", value, kRoom);
  const std::wstring_view way(value, length < kRoom ? length : 0);
  if (way == L"gdi") return DrawingWay::kGdi;
  if (way == L"fast") return DrawingWay::kFast;
#ifdef TAVIX_GDI_DRAWING
  return DrawingWay::kGdi;
#else
  return DrawingWay::kFast;
#endif
}

}  // namespace tavix
