#include "host/formats/text_lines.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

// find_first_of would make a call for each character it passes.
std::size_t LineEnd(std::string_view bytes) {
  const auto end = std::find_if(bytes.begin(), bytes.end(),
                                [](char byte) { return byte == '\n' || byte == '\r'; });
  return static_cast<std::size_t>(end - bytes.begin());
}

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

}  // namespace

TextLines::TextLines(std::string_view bytes, ReadLog& log)
    : encoding_(bytes.starts_with(kByteOrderMark) ? TextEncoding::kUtf8 : EncodingOf(bytes)) {
  bytes = WithoutByteOrderMark(bytes);
  for (int number = 1; !bytes.empty(); ++number) {
    const std::size_t end = LineEnd(bytes);
    Take(number, bytes.substr(0, end), log);
    bytes.remove_prefix(end);
    bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : bytes.empty() ? 0 : 1);
  }
}

void TextLines::Take(int number, std::string_view bytes, ReadLog& log) {
  if (bytes.size() > kLongestLine) {
    log.Skip(number, "the line is too long");
    return;
  }
  if (bytes.find('\0') != std::string_view::npos) {
    log.Skip(number, "the line holds a null character");
    return;
  }
  if (Trim(bytes).empty()) return;
  if (IsAscii(bytes)) {
    lines_.push_back({number, bytes});
    return;
  }
  if (encoding_ == TextEncoding::kUtf8) {
    if (IsUtf8(bytes)) {
      lines_.push_back({number, bytes});
    } else {
      log.Skip(number, "the line is not UTF-8 text");
    }
    return;
  }
  if (std::optional<std::string> text = Utf8From(CodePage::kShiftJis, bytes)) {
    lines_.push_back({number, converted_.emplace_back(std::move(*text))});
  } else {
    log.Skip(number, "the line is neither UTF-8 nor Shift-JIS text");
  }
}

}  // namespace fieldhost
