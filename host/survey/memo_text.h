// A memo as the information line shows it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace fieldhost {

// The first line that is not blank, cut to so many characters; an ellipsis marks that more follows.
// Text is UTF-8, line ends of any kind.
[[nodiscard]] std::string MemoBeginning(std::string_view memo, std::size_t most_characters);

}  // namespace fieldhost
