#include "host/formats/code_page_windows.h"

#include <windows.h>

#include <cstddef>

#include "host/formats/text_encoding.h"

namespace fieldhost {
namespace {

UINT NumberOf(CodePage code_page) {
  switch (code_page) {
    case CodePage::kShiftJis:
      return 932;
    case CodePage::kLatin1:
      return 28591;
    case CodePage::kWindows1252:
      break;
  }
  return 1252;
}

}  // namespace

std::optional<std::string> Utf8From(CodePage code_page, std::string_view bytes) {
  if (bytes.empty()) return std::string();
  const UINT number = NumberOf(code_page);
  const int size = static_cast<int>(bytes.size());
  const int wide_size =
      ::MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
  if (wide_size <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(wide_size), L'\0');
  ::MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, bytes.data(), size, wide.data(), wide_size);
  return Utf8FromWide(wide);
}

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
