// An XML document as a tree.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/formats/xml/xml_parser.h"

namespace fieldhost {

struct XmlNode {
  std::string name;
  int line = 0;  // of the start tag, from 1
  std::vector<XmlAttribute> attributes;
  std::string text;  // all that stands directly in the element
  std::vector<XmlNode> children;

  // Empty when there is no such attribute.
  [[nodiscard]] std::string_view Attribute(std::string_view attribute) const;
  // The first child of a name; null when there is none.
  [[nodiscard]] const XmlNode* Child(std::string_view child) const;
};

struct XmlTree {
  XmlNode root;
  std::optional<XmlProblem> problem;  // the tree is then what came before it
};

// Parses as ParseXml does. Elements named in `left_out` stay out of the tree, with all that is in
// them: a file may hold far more than one wants to keep.
[[nodiscard]] XmlTree ReadXmlTree(std::string_view text,
                                  std::span<const std::string_view> left_out);

}  // namespace fieldhost
