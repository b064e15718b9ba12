#include "host/formats/landxml/landxml_ground.h"

#include <algorithm>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// A text may be as large as its file: its words are not copied.
template <class Action>
void ForEachWord(std::string_view text, Action action) {
  for (std::size_t begin = text.find_first_not_of(kBlanks); begin != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
    action(text.substr(begin, end - begin));
    begin = text.find_first_not_of(kBlanks, end);
  }
}

std::vector<double> Numbers(const XmlNode& node) {
  std::vector<double> numbers;
  ForEachWord(node.text, [&](std::string_view word) {
    const std::optional<double> number = RealNumber(word);
    if (!number) {
      throw LandXmlFault("the " + node.name + " holds " + Quoted(word) + ", which is not a number");
    }
    numbers.push_back(*number);
  });
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
    points_.try_emplace(std::string(node.Attribute("name")), NamedPoint{&node, std::nullopt, {}});
  }
  for (const XmlNode& child : node.children) CollectPoints(child);
}

// A point may refer to another, and that to a third. The result is stored for all on the path, so
// each point is visited once.
LandXmlPosition LandXmlGround::PositionNamed(std::string_view name) const {
  std::vector<NamedPoint*> way;
  std::optional<LandXmlPosition> position;
  std::string fault;
  while (!position && fault.empty()) {
    const auto found = points_.find(std::string(name));
    if (found == points_.end()) {
      fault = "the point " + Quoted(name) + " that is referred to is not in this file";
      break;
    }
    NamedPoint& point = found->second;
    position = point.position;
    fault = point.fault;
    if (position || !fault.empty()) break;
    way.push_back(&point);
    point.fault = "the point " + Quoted(name) + " refers to itself";  // should the path return here
    name = point.node->Attribute("pntRef");
    if (Trim(point.node->text).empty() && !name.empty()) continue;
    try {
      position = OwnPosition(*point.node);
    } catch (const LandXmlFault& own) {
      fault = own.what();
    }
  }
  for (NamedPoint* const point : way) {
    point->position = position;
    point->fault = fault;
  }
  if (!position) throw LandXmlFault(fault);
  return *position;
}

LandXmlPosition LandXmlGround::PositionOf(const XmlNode& node) const {
  const std::string_view name = node.Attribute("pntRef");
  return Trim(node.text).empty() && !name.empty() ? PositionNamed(name) : OwnPosition(node);
}

LandXmlPosition LandXmlGround::OwnPosition(const XmlNode& node) const {
  const std::vector<double> numbers = Numbers(node);
  if (numbers.empty()) throw LandXmlFault("the " + node.name + " has no coordinates");
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
                       " numbers, which is not " + std::to_string(each) + " for each point");
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
  ForEachWord(chain.text, [&](std::string_view name) { positions.push_back(PositionNamed(name)); });
  if (positions.empty()) throw LandXmlFault("the Chain names no points");
  return positions;
}

std::optional<double> LandXmlGround::Length(const XmlNode& node, std::string_view attribute) const {
  const std::string_view text = node.Attribute(attribute);
  if (Trim(text).empty()) return std::nullopt;
  const std::optional<double> number = RealNumber(text);
  if (!number || !IsOnGround(*number * metres_)) {
    throw LandXmlFault("the " + node.name + " has the " + std::string(attribute) + ' ' +
                       Quoted(text) + ", which is not a length");
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
