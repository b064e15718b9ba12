#include "host/formats/utf8_windows.h"

#include <windows.h>

#include <cstddef>

namespace fieldhost {

std::string Utf8FromWide(std::wstring_view wide) {
  if (wide.empty()) return std::string();
  std::string utf8(wide.size() * 3, '\0');  // the most a UTF-16 unit takes
  const int size =
      ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(),
                            static_cast<int>(utf8.size()), nullptr, nullptr);
  utf8.resize(static_cast<std::size_t>(size));
  return utf8;
}

}  // namespace fieldhost
