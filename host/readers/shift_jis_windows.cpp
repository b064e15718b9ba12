#include <windows.h>

#include "host/readers/text_encoding.h"

namespace fieldhost {
namespace {

constexpr UINT kCodePage = 932;

}  // namespace

std::optional<std::string> Utf8FromShiftJis(std::string_view bytes) {
  if (bytes.empty()) return std::string();
  const int size = static_cast<int>(bytes.size());
  const int wide_size =
      ::MultiByteToWideChar(kCodePage, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
  if (wide_size <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(wide_size), L'\0');
  ::MultiByteToWideChar(kCodePage, MB_ERR_INVALID_CHARS, bytes.data(), size, wide.data(),
                        wide_size);

  std::string text(wide.size() * 3, '\0');  // the most a UTF-16 unit takes
  const int text_size = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), wide_size, text.data(),
                                              static_cast<int>(text.size()), nullptr, nullptr);
  text.resize(static_cast<std::size_t>(text_size));
  return text;
}

}  // namespace fieldhost
