// A memo as the information line shows it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace fieldhost {

// The first line that says something, of at most so many characters; an ellipsis says that the memo
// goes on. Text is UTF-8, line ends of any kind.
[[nodiscard]] std::string MemoBeginning(std::string_view memo, std::size_t most_characters);

}  // namespace fieldhost
