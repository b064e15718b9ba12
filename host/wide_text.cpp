#include "host/wide_text.h"

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
  if (text.IsEmpty()) return std::string();
  std::string utf8(static_cast<std::size_t>(text.GetLength()) * 3, '\0');
  const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), utf8.data(),
                                         static_cast<int>(utf8.size()), nullptr, nullptr);
  utf8.resize(static_cast<std::size_t>(size));
  return utf8;
}

}  // namespace fieldhost
