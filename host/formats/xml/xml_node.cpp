#include "host/formats/xml/xml_node.h"

#include <algorithm>
#include <utility>

namespace fieldhost {
namespace {

class TreeBuilder final : public XmlHandler {
 public:
  explicit TreeBuilder(std::span<const std::string_view> left_out) : left_out_(left_out) {
    open_.push_back(&document_);
  }

  void BeginElement(std::string name, std::vector<XmlAttribute> attributes, int line) override {
    if (left_out_depth_ > 0 || IsLeftOut(name)) {
      ++left_out_depth_;
      return;
    }
    // The open elements are each the last child of the one before: none of them moves.
    std::vector<XmlNode>& siblings = open_.back()->children;
    siblings.push_back({std::move(name), line, std::move(attributes), {}, {}});
    open_.push_back(&siblings.back());
  }

  void EndElement() override {
    if (left_out_depth_ > 0) {
      --left_out_depth_;
    } else {
      open_.pop_back();
    }
  }

  void TakeText(std::string_view text) override {
    if (left_out_depth_ == 0) open_.back()->text += text;
  }

  XmlNode Root() {
    return document_.children.empty() ? XmlNode() : std::move(document_.children[0]);
  }

 private:
  [[nodiscard]] bool IsLeftOut(std::string_view name) const {
    return std::find(left_out_.begin(), left_out_.end(), name) != left_out_.end();
  }

  std::span<const std::string_view> left_out_;
  XmlNode document_;
  std::vector<XmlNode*> open_;
  int left_out_depth_ = 0;
};

}  // namespace

std::string_view XmlNode::Attribute(std::string_view attribute) const {
  const auto found = std::find_if(attributes.begin(), attributes.end(),
                                  [&](const XmlAttribute& one) { return one.name == attribute; });
  return found == attributes.end() ? std::string_view() : found->value;
}

const XmlNode* XmlNode::Child(std::string_view child) const {
  const auto found = std::find_if(children.begin(), children.end(),
                                  [&](const XmlNode& one) { return one.name == child; });
  return found == children.end() ? nullptr : &*found;
}

XmlTree ReadXmlTree(std::string_view text, std::span<const std::string_view> left_out) {
  TreeBuilder builder(left_out);
  const std::optional<XmlProblem> problem = ParseXml(text, builder);
  return {builder.Root(), problem};
}

}  // namespace fieldhost
