#include "host/readers/xml_parser.h"

#include <algorithm>
#include <cstddef>

namespace fieldhost {

// The parsers differ in what they do about document types, and no survey file has one. The words
// are refused in a comment as well.
std::optional<XmlProblem> ParseXml(std::string_view text, XmlHandler& handler) {
  const std::size_t document_type = text.find("<!DOCTYPE");
  if (document_type != std::string_view::npos) {
    const std::string_view before = text.substr(0, document_type);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    return XmlProblem{XmlFault::kDocumentType, 1 + static_cast<int>(lines)};
  }
  return ParseBySystem(text, handler);
}

}  // namespace fieldhost
