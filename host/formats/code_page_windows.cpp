#include <windows.h>

#include "host/formats/text_encoding.h"
#include "host/formats/utf8_windows.h"

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

}  // namespace fieldhost
