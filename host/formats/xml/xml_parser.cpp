#include "host/formats/xml/xml_parser.h"

#include <algorithm>
#include <cstddef>

namespace fieldhost {
namespace {

XmlProblem ProblemAt(std::string_view text, std::size_t place, XmlFault fault) {
  const std::string_view before = text.substr(0, place);
  return {fault, 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'))};
}

// Whether the tag at the start of `text` is too long. A '>' in a value does not end the tag; a '<'
// does, as damage that the parser reports.
bool IsLongTag(std::string_view text) {
  char quote = '\0';
  for (std::size_t i = 1; i < std::min(text.size(), kLongestTag); ++i) {
    const char byte = text[i];
    if (byte == '<') return false;
    if (quote != '\0') {
      if (byte == quote) quote = '\0';
    } else if (byte == '"' || byte == '\'') {
      quote = byte;
    } else if (byte == '>') {
      return false;
    }
  }
  return text.size() > kLongestTag;
}

// Comments, instructions and sections are not tags.
std::size_t FindLongTag(std::string_view text) {
  for (std::size_t tag = text.find('<'); tag != std::string_view::npos;
       tag = text.find('<', tag + 1)) {
    const bool is_tag = !text.substr(tag + 1).starts_with('!');
    if (is_tag && IsLongTag(text.substr(tag))) return tag;
  }
  return std::string_view::npos;
}

}  // namespace

// The parsers differ in what they do about document types, and no survey file has one. The words
// are refused in a comment as well.
std::optional<XmlProblem> ParseXml(std::string_view text, XmlHandler& handler) {
  const std::size_t document_type = text.find("<!DOCTYPE");
  if (document_type != std::string_view::npos) {
    return ProblemAt(text, document_type, XmlFault::kDocumentType);
  }
  const std::size_t long_tag = FindLongTag(text);
  if (long_tag != std::string_view::npos) return ProblemAt(text, long_tag, XmlFault::kLongTag);
  return ParseBySystem(text, handler);
}

}  // namespace fieldhost
