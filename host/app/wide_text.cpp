#include "host/app/wide_text.h"

#include "host/formats/utf8_windows.h"

namespace fieldhost {

CString WideOf(std::string_view utf8) {
  if (utf8.empty()) return CString();
  const int size = static_cast<int>(utf8.size());
  CString text;
  LPWSTR buffer = text.GetBuffer(size);  // UTF-16 never takes more units than UTF-8 has bytes
  text.ReleaseBuffer(::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, buffer, size));
  return text;
}

std::string Utf8Of(const CString& text) {
  return Utf8FromWide({text.GetString(), static_cast<std::size_t>(text.GetLength())});
}

}  // namespace fieldhost
