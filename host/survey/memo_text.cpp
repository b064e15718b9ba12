#include "host/survey/memo_text.h"

namespace fieldhost {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kEllipsis = "\xE2\x80\xA6";

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool BeginsACharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

// All of the text when it has no more characters than that.
std::string_view Characters(std::string_view text, std::size_t most) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (BeginsACharacter(text[i]) && ++count > most) return text.substr(0, i);
  }
  return text;
}

}  // namespace

std::string MemoBeginning(std::string_view memo, std::size_t most_characters) {
  const std::string_view text = Trimmed(memo);
  const std::string_view line = Trimmed(text.substr(0, text.find_first_of("\r\n")));
  std::string beginning(Trimmed(Characters(line, most_characters)));
  if (beginning.size() < text.size()) beginning += kEllipsis;
  return beginning;
}

}  // namespace fieldhost
