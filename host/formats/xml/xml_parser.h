// XML, event by event.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fieldhost {

struct XmlAttribute {
  std::string name;
  std::string value;
};

// Receives what a document holds, in its order. Names come without prefix; attributes of a
// namespace and comments do not come at all.
class XmlHandler {
 public:
  // `line` is that of the start tag, from 1.
  virtual void BeginElement(std::string name, std::vector<XmlAttribute> attributes, int line) = 0;
  virtual void EndElement() = 0;
  // Text between two tags may come in several pieces; text of blanks alone may be left out.
  virtual void TakeText(std::string_view text) = 0;

 protected:
  ~XmlHandler() = default;
};

enum class XmlFault {
  kNotWellFormed,
  kTooDeep,       // elements in elements past kDeepestXml
  kDocumentType,  // a document type declaration: it may define entities that grow without end
  kLongTag,       // a start tag past kLongestTag: parsers compare each attribute with all others
  kNoParser,      // the system lacks its parser
};

struct XmlProblem {
  XmlFault fault;
  int line;  // where it showed, from 1; for a missing end tag perhaps a line earlier
};

inline constexpr unsigned kDeepestXml = 200;
inline constexpr std::size_t kLongestTag = 65536;  // bytes

// Parses UTF-8 text, which must not begin with an XML declaration. Says what was wrong; what came
// before that line has then been handed out already.
[[nodiscard]] std::optional<XmlProblem> ParseXml(std::string_view text, XmlHandler& handler);

// The parser itself is the system's, or a library's: there is one source for each system. Called
// for text without a document type and without long tags.
[[nodiscard]] std::optional<XmlProblem> ParseBySystem(std::string_view text, XmlHandler& handler);

}  // namespace fieldhost
