#include "host/readers/landxml_ground.h"

#include "host/readers/field_text.h"
#include "host/readers/ground_number.h"

namespace fieldhost {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  for (std::size_t begin = text.find_first_not_of(kBlanks); begin != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
    words.push_back(text.substr(begin, end - begin));
    begin = text.find_first_not_of(kBlanks, end);
  }
  return words;
}

std::vector<double> Numbers(const XmlNode& node) {
  std::vector<double> numbers;
  for (const std::string_view word : Words(node.text)) {
    const std::optional<double> number = RealNumber(word);
    if (!number) {
      throw LandXmlFault("the " + node.name + " holds " + Quoted(word) + ", which is no number");
    }
    numbers.push_back(*number);
  }
  return numbers;
}

}  // namespace

bool IsPointList(const XmlNode& node) {
  return node.name == "PntList2D" || node.name == "PntList3D" || node.name == "Chain";
}

LandXmlGround::LandXmlGround(const XmlNode& root, double metres) : metres_(metres) {
  CollectPoints(root);
}

void LandXmlGround::CollectPoints(const XmlNode& node) {
  if (node.name == "CgPoint" && !node.Attribute("name").empty()) {
    points_.try_emplace(std::string(node.Attribute("name")), &node);
  }
  for (const XmlNode& child : node.children) CollectPoints(child);
}

const XmlNode& LandXmlGround::PointNamed(std::string_view name) const {
  const auto found = points_.find(std::string(name));
  if (found == points_.end()) {
    throw LandXmlFault("the point " + Quoted(name) + " that is referred to is not in this file");
  }
  return *found->second;
}

LandXmlPosition LandXmlGround::PositionOf(const XmlNode& node) const {
  const XmlNode* holder = &node;
  // A point may refer to one that refers on: no further than there are points.
  for (std::size_t steps = 0; Trim(holder->text).empty(); ++steps) {
    const std::string_view name = holder->Attribute("pntRef");
    if (name.empty()) throw LandXmlFault("the " + node.name + " has no coordinates");
    if (steps > points_.size()) {
      throw LandXmlFault("the point " + Quoted(name) + " refers to itself");
    }
    holder = &PointNamed(name);
  }
  const std::vector<double> numbers = Numbers(*holder);
  if (numbers.size() != 2 && numbers.size() != 3) {
    throw LandXmlFault("the " + node.name + " holds " + std::to_string(numbers.size()) +
                       " numbers in place of northing, easting and height");
  }
  return FromNumbers(numbers.data(), numbers.size());
}

std::vector<LandXmlPosition> LandXmlGround::PositionsOf(const XmlNode& list) const {
  if (list.name == "Chain") return NamedPositions(list);
  const std::size_t each = list.name == "PntList3D" ? 3 : 2;
  const std::vector<double> numbers = Numbers(list);
  if (numbers.empty() || numbers.size() % each != 0) {
    throw LandXmlFault("the " + list.name + " holds " + std::to_string(numbers.size()) +
                       " numbers, which are no " + std::to_string(each) + " for each point");
  }
  std::vector<LandXmlPosition> positions;
  positions.reserve(numbers.size() / each);
  for (std::size_t i = 0; i < numbers.size(); i += each) {
    positions.push_back(FromNumbers(&numbers[i], each));
  }
  return positions;
}

std::vector<LandXmlPosition> LandXmlGround::NamedPositions(const XmlNode& chain) const {
  std::vector<LandXmlPosition> positions;
  for (const std::string_view name : Words(chain.text)) {
    positions.push_back(PositionOf(PointNamed(name)));
  }
  if (positions.empty()) throw LandXmlFault("the Chain names no points");
  return positions;
}

std::optional<double> LandXmlGround::Length(const XmlNode& node, std::string_view attribute) const {
  const std::string_view text = node.Attribute(attribute);
  if (Trim(text).empty()) return std::nullopt;
  const std::optional<double> number = RealNumber(text);
  if (!number || !IsOnGround(*number * metres_)) {
    throw LandXmlFault("the " + node.name + " has the " + std::string(attribute) + ' ' +
                       Quoted(text) + ", which is no length");
  }
  return *number * metres_;
}

LandXmlPosition LandXmlGround::FromNumbers(const double* numbers, std::size_t count) const {
  const auto metres = [&](std::size_t i) {
    const double value = numbers[i] * metres_;
    if (!IsOnGround(value)) {
      throw LandXmlFault("the coordinate " + std::to_string(numbers[i]) +
                         " lies beyond any ground");
    }
    return value;
  };
  LandXmlPosition position{{metres(0), metres(1)}, std::nullopt};
  if (count == 3) position.height = metres(2);
  return position;
}

}  // namespace fieldhost
