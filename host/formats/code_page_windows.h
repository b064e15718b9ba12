// Windows' UTF-16 text in UTF-8. Only for Windows sources.
#pragma once

#include <string>
#include <string_view>

namespace fieldhost {

[[nodiscard]] std::string Utf8FromWide(std::wstring_view wide);

}  // namespace fieldhost
