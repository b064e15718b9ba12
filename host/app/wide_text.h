// UTF-8 text, which the host works with, and the system's UTF-16.
#pragma once

#include <afxwin.h>

#include <string>
#include <string_view>

namespace fieldhost {

[[nodiscard]] CString WideOf(std::string_view utf8);
[[nodiscard]] std::string Utf8Of(const CString& text);

}  // namespace fieldhost
