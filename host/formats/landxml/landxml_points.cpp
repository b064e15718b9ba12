#include "host/formats/landxml/landxml_points.h"

#include <initializer_list>
#include <string>
#include <utility>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

std::string FirstText(std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) {
    if (!Trim(text).empty()) return std::string(Trim(text));
  }
  return "";
}

SurveyPoint PointAt(const LandXmlPosition& position, std::string name, std::string kind) {
  SurveyPoint point;
  point.number = WholeNumber(name).value_or(0);
  point.name = std::move(name);
  point.kind = std::move(kind);
  point.north = position.plan.north;
  point.east = position.plan.east;
  point.height = position.height;
  return point;
}

}  // namespace

SurveyPoint ReadCgPoint(const XmlNode& node, const LandXmlGround& ground,
                        std::string_view group_kind) {
  const std::string_view code = node.Attribute("code");
  const std::string_view desc = node.Attribute("desc");
  return PointAt(ground.PositionOf(node),
                 FirstText({node.Attribute("name"), desc, code, node.Attribute("oID"), "-"}),
                 FirstText({code, desc, group_kind}));
}

SurveyPoint ReadStruct(const XmlNode& node, const LandXmlGround& ground) {
  const XmlNode* const centre = node.Child("Center");
  if (!centre) throw LandXmlFault("the Struct has no Center");
  LandXmlPosition position = ground.PositionOf(*centre);
  if (const auto rim = ground.Length(node, "elevRim")) position.height = rim;
  return PointAt(position, FirstText({node.Attribute("name"), node.Attribute("desc"), "-"}),
                 "manhole");
}

std::vector<SurveyPoint> ReadDataPoints(const XmlNode& node, const LandXmlGround& ground) {
  const std::string name = FirstText({node.Attribute("code"), node.Attribute("name"), "terrain"});
  std::vector<SurveyPoint> points;
  for (const XmlNode& list : node.children) {
    if (!IsPointList(list)) continue;
    for (const LandXmlPosition& position : ground.PositionsOf(list)) {
      points.push_back(PointAt(position, name, "terrain"));
      points.back().number = static_cast<int>(points.size());
    }
  }
  return points;
}

}  // namespace fieldhost
