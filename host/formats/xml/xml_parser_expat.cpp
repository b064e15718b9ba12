#include <expat.h>

#include <algorithm>
#include <memory>
#include <type_traits>

#include "host/formats/xml/xml_parser.h"

namespace fieldhost {
namespace {

constexpr char kNameSeparator = '\n';  // between a namespace and a name; no name holds one

struct ParserFreer {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserFreer>;

struct Parse {
  XML_Parser parser;
  XmlHandler& handler;
  unsigned depth = 0;
  std::optional<XmlFault> fault;

  void Stop(XmlFault why) {
    fault = why;
    XML_StopParser(parser, XML_FALSE);
  }
  [[nodiscard]] int Line() const { return static_cast<int>(XML_GetCurrentLineNumber(parser)); }
};

Parse& Of(void* user_data) { return *static_cast<Parse*>(user_data); }

std::vector<XmlAttribute> Attributes(const XML_Char** pairs) {
  std::vector<XmlAttribute> attributes;
  for (; *pairs; pairs += 2) {
    const std::string_view name = pairs[0];
    if (name.find(kNameSeparator) == std::string_view::npos) {
      attributes.push_back({std::string(name), pairs[1]});
    }
  }
  return attributes;
}

void Begin(void* user_data, const XML_Char* full_name, const XML_Char** attributes) {
  Parse& parse = Of(user_data);
  if (++parse.depth > kDeepestXml) return parse.Stop(XmlFault::kTooDeep);
  const std::string_view name = full_name;
  parse.handler.BeginElement(std::string(name.substr(name.rfind(kNameSeparator) + 1)),
                             Attributes(attributes), parse.Line());
}

void End(void* user_data, const XML_Char* /*name*/) {
  --Of(user_data).depth;
  Of(user_data).handler.EndElement();
}

void Text(void* user_data, const XML_Char* text, int length) {
  Of(user_data).handler.TakeText({text, static_cast<std::size_t>(length)});
}

}  // namespace

std::optional<XmlProblem> ParseBySystem(std::string_view text, XmlHandler& handler) {
  const Parser parser(XML_ParserCreateNS("UTF-8", kNameSeparator));
  if (!parser) return XmlProblem{XmlFault::kNoParser, 1};
  Parse parse{parser.get(), handler, 0, std::nullopt};
  XML_SetUserData(parser.get(), &parse);
  XML_SetElementHandler(parser.get(), Begin, End);
  XML_SetCharacterDataHandler(parser.get(), Text);
  if (XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE) ==
      XML_STATUS_OK) {
    return std::nullopt;
  }
  return XmlProblem{parse.fault.value_or(XmlFault::kNotWellFormed), std::max(1, parse.Line())};
}

}  // namespace fieldhost
