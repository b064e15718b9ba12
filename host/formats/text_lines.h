// The lines of a text file, in UTF-8.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "host/formats/read_log.h"
#include "host/formats/text_encoding.h"

namespace fieldhost {

struct TextLine {
  int number = 0;         // from 1
  std::string_view text;  // without line end, not blank
};

// Splits a file's bytes into lines. A line ends with CR LF, LF or CR. Blank lines are left out,
// also a closing Ctrl-Z; lines that are not text, or longer than any record, are skipped and
// logged.
class TextLines {
 public:
  static constexpr std::size_t kLongestLine = 65536;  // bytes

  // `bytes` must outlive the object.
  TextLines(std::string_view bytes, ReadLog& log);
  TextLines(const TextLines&) = delete;
  TextLines& operator=(const TextLines&) = delete;

  [[nodiscard]] const std::vector<TextLine>& All() const { return lines_; }

 private:
  void Take(int number, std::string_view bytes, ReadLog& log);

  TextEncoding encoding_;
  std::vector<TextLine> lines_;
  std::deque<std::string> converted_;  // stays in place: lines_ points into it
};

}  // namespace fieldhost
