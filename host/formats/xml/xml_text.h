// XML files of any encoding we read, in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace fieldhost {

struct XmlText {
  std::string text;     // UTF-8, line by line as in the file
  std::string problem;  // why the file is refused, as the end of a sentence
};

// Converts a file by the encoding that its XML declaration names, and blanks the declaration out,
// which no longer holds. Text declared UTF-8 that is not valid UTF-8 is decoded as Shift-JIS, or
// as Latin 1 where it is not valid Shift-JIS either.
[[nodiscard]] XmlText Utf8XmlText(std::string_view bytes);

}  // namespace fieldhost
