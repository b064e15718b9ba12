// XML files of any encoding we read, in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace fieldhost {

struct XmlText {
  std::string text;     // UTF-8, line by line as in the file
  std::string problem;  // why there is none, as the end of a sentence
};

// Converts a file by the encoding that its XML declaration names, and blanks the declaration out,
// whose name is no longer true. UTF-8 that is none was labelled wrongly: it is taken for Shift-JIS,
// or for Latin 1 where it is not that either.
[[nodiscard]] XmlText Utf8XmlText(std::string_view bytes);

}  // namespace fieldhost
