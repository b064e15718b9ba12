#include "host/formats/landxml/landxml_walk.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/formats/field_text.h"
#include "host/formats/landxml/landxml_elements.h"
#include "host/formats/landxml/landxml_points.h"

namespace fieldhost {
namespace {

struct LineHolder {
  std::string_view name;
  LineKind kind;
};

constexpr LineHolder kLineHolders[] = {
    {"Alignment", LineKind::kAlignment}, {"Breakline", LineKind::kBreakline},
    {"PlanFeature", LineKind::kFeature}, {"Parcel", LineKind::kParcel},
    {"Boundary", LineKind::kBoundary},   {"Contour", LineKind::kContour},
};

// What the elements around say about a line or a point.
struct Surroundings {
  LineKind kind = LineKind::kOther;
  std::string_view line_name;
  std::string_view point_kind;

  void Enter(const XmlNode& node) {
    const auto* holder = std::find_if(std::begin(kLineHolders), std::end(kLineHolders),
                                      [&](const LineHolder& row) { return row.name == node.name; });
    if (holder != std::end(kLineHolders)) {
      kind = holder->kind;
      line_name = node.Attribute("name");
    }
    if (node.name == "CgPoints") {
      for (const std::string_view attribute : {"desc", "code"}) {
        if (!Trim(node.Attribute(attribute)).empty()) point_kind = node.Attribute(attribute);
      }
    }
  }
};

class Walk {
 public:
  Walk(const LandXmlGround& ground, ReadLog& log) : ground_(ground), log_(log) {}

  void Visit(const XmlNode& node, Surroundings around) {
    if (node.name == "CgPoint") {
      Attempt(node, [&] { AddPoint(ReadCgPoint(node, ground_, around.point_kind)); });
    } else if (node.name == "Struct") {
      Attempt(node, [&] { AddStruct(node); });
    } else if (node.name == "Pipe") {
      pipes_.push_back(&node);
    } else if (node.name == "DataPoints") {
      Attempt(node, [&] { AddDataPoints(node); });
    } else if (IsPointList(node)) {
      Attempt(node, [&] { AddPolyline(node, around); });
    } else if (node.name == "CoordGeom") {
      AddElements(node, around);
    } else {
      around.Enter(node);
      for (const XmlNode& child : node.children) Visit(child, around);
    }
  }

  // Pipes may stand before the structs they join.
  Survey Finish() {
    for (const XmlNode* const pipe : pipes_) {
      Attempt(*pipe, [&] { AddPipe(*pipe); });
    }
    return std::move(survey_);
  }

 private:
  template <class Action>
  void Attempt(const XmlNode& node, Action action) {
    try {
      action();
    } catch (const LandXmlFault& fault) {
      log_.SkipElement(node.line, fault.what());
    }
  }

  void AddPoint(SurveyPoint point) { survey_.points.push_back(std::move(point)); }

  void AddStruct(const XmlNode& node) {
    SurveyPoint point = ReadStruct(node, ground_);
    structs_.try_emplace(std::string(node.Attribute("name")),
                         GroundPosition{point.north, point.east});
    AddPoint(std::move(point));
  }

  void AddDataPoints(const XmlNode& node) {
    for (SurveyPoint& point : ReadDataPoints(node, ground_)) AddPoint(std::move(point));
  }

  void AddPolyline(const XmlNode& node, const Surroundings& around) {
    PlanPolyline line;
    for (const LandXmlPosition& position : ground_.PositionsOf(node)) {
      line.vertices.push_back(position.plan);
    }
    if (line.vertices.size() < 2) throw LandXmlFault("the " + node.name + " holds a single point");
    AddLine({std::string(around.line_name), around.kind, {{std::move(line)}}});
  }

  void AddElements(const XmlNode& node, const Surroundings& around) {
    SurveyLine line{std::string(around.line_name), around.kind, {}};
    std::optional<GroundPosition> end;
    for (const XmlNode& child : node.children) {
      if (!IsPlanElement(child)) continue;
      const std::optional<GroundPosition> before = std::exchange(end, std::nullopt);
      Attempt(child, [&] {
        LandXmlElement element = ReadPlanElement(child, ground_, before);
        end = element.end;
        line.elements.push_back(std::move(element.pieces));
      });
    }
    if (!line.elements.empty()) AddLine(std::move(line));
  }

  void AddPipe(const XmlNode& node) {
    const GroundPosition from = StructNamed(node.Attribute("refStart"));
    const GroundPosition to = StructNamed(node.Attribute("refEnd"));
    AddLine({std::string(node.Attribute("name")), LineKind::kPipe, {{PlanStraight{from, to}}}});
  }

  [[nodiscard]] GroundPosition StructNamed(std::string_view name) const {
    const auto found = structs_.find(std::string(name));
    if (found == structs_.end()) {
      throw LandXmlFault("the Pipe joins the Struct " + Quoted(name) + ", which is not there");
    }
    return found->second;
  }

  void AddLine(SurveyLine line) { survey_.lines.push_back(std::move(line)); }

  const LandXmlGround& ground_;
  ReadLog& log_;
  Survey survey_;
  std::unordered_map<std::string, GroundPosition> structs_;  // of several the first
  std::vector<const XmlNode*> pipes_;
};

}  // namespace

Survey CollectLandXml(const XmlNode& root, const LandXmlGround& ground, ReadLog& log) {
  Walk walk(ground, log);
  walk.Visit(root, {});
  return walk.Finish();
}

}  // namespace fieldhost
