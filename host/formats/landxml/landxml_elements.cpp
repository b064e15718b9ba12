#include "host/formats/landxml/landxml_elements.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/formats/field_text.h"
#include "host/formats/landxml/plan_curves.h"

namespace fieldhost {
namespace {

constexpr double kSmallestRadius = 0.001;  // metres

// One element, and the end of the one before.
struct Source {
  const XmlNode& node;
  const LandXmlGround& ground;
  const std::optional<GroundPosition>& before;

  [[noreturn]] void Refuse(const std::string& why) const {
    throw LandXmlFault("the " + node.name + ' ' + why);
  }

  [[nodiscard]] std::optional<GroundPosition> Position(std::string_view child) const {
    const XmlNode* const found = node.Child(child);
    if (!found) return std::nullopt;
    return ground.PositionOf(*found).plan;
  }

  [[nodiscard]] GroundPosition Start() const {
    if (const auto start = Position("Start")) return *start;
    if (!before) Refuse("does not say where it starts");
    return *before;
  }

  [[nodiscard]] GroundPosition End() const {
    const auto end = Position("End");
    if (!end) Refuse("does not say where it ends");
    return *end;
  }

  [[nodiscard]] Rotation Turning() const {
    const std::string rot = LowerCase(Trim(node.Attribute("rot")));
    if (rot == "cw") return Rotation::kClockwise;
    if (rot != "ccw") Refuse("does not say by rot which way it turns");
    return Rotation::kCounterClockwise;
  }
};

// Within what files round, and a little more.
bool Agree(double a, double b, double size) {
  return std::abs(a - b) <= std::max(0.02, size * 0.002);
}

PlanElement ReadCurve(const Source& source, GroundPosition start, GroundPosition end) {
  const Rotation rotation = source.Turning();
  std::optional<GroundPosition> centre = source.Position("Center");
  std::optional<double> radius = source.ground.Length(source.node, "radius");
  const std::optional<double> length = source.ground.Length(source.node, "length");
  if (!radius && !centre) source.Refuse("has neither a radius nor a Center");
  if (!radius) radius = Distance(*centre, start);
  if (*radius < kSmallestRadius) source.Refuse("has no radius");
  if (!centre) {
    const bool is_long = length && *length > std::numbers::pi * *radius;
    centre = CentreOf(start, end, *radius, rotation, is_long);
    if (!centre) source.Refuse("has a radius that does not reach from its Start to its End");
  }
  if (!Agree(Distance(*centre, start), *radius, *radius) ||
      !Agree(Distance(*centre, end), *radius, *radius)) {
    source.Refuse("has a Center that is not its radius away from its Start and End");
  }
  const double turn = TurnAbout(*centre, start, end, rotation);
  if (length && !Agree(turn * *radius, *length, *length)) {
    source.Refuse("is of another length than its ends, its radius and its rot give");
  }
  return ArcAbout(*centre, start, end, *radius, rotation, turn);
}

// A radius of INF is a straight end.
double Curvature(const Source& source, std::string_view attribute) {
  if (LowerCase(Trim(source.node.Attribute(attribute))) == "inf") return 0.0;
  const std::optional<double> radius = source.ground.Length(source.node, attribute);
  if (!radius || *radius < kSmallestRadius) {
    source.Refuse("has no " + std::string(attribute));
  }
  return 1.0 / *radius;
}

// By the length; where a file gives the parameter instead, by that: A^2 = L / |k2 - k1|.
double SpiralLength(const Source& source, double curvature_change) {
  if (const auto length = source.ground.Length(source.node, "length")) return *length;
  const auto parameter = source.ground.Length(source.node, "constant");
  if (!parameter) source.Refuse("has neither a length nor a constant");
  return *parameter * *parameter * curvature_change;
}

PlanElement ReadSpiral(const Source& source, GroundPosition start, GroundPosition end) {
  const std::string_view type = Trim(source.node.Attribute("spiType"));
  if (!type.empty() && LowerCase(type) != "clothoid") {
    source.Refuse("is of the type " + Quoted(type) + "; only clothoids are drawn");
  }
  SpiralShape shape;
  shape.rotation = source.Turning();
  shape.start_curvature = Curvature(source, "radiusStart");
  shape.end_curvature = Curvature(source, "radiusEnd");
  if (shape.start_curvature == 0.0 && shape.end_curvature == 0.0) {
    source.Refuse("is straight at both ends");
  }
  shape.length = SpiralLength(source, std::abs(shape.end_curvature - shape.start_curvature));
  if (!(shape.length > 0.0)) source.Refuse("has no length");
  if (!Agree(ChordOf(shape), Distance(start, end), shape.length)) {
    source.Refuse("does not reach from its Start to its End by its radii and its length");
  }
  if (const auto vertex = source.Position("PI")) {
    const bool clockwise = shape.rotation == Rotation::kClockwise;
    const double bend = BendAt(start, *vertex, end);
    if (std::abs(bend) > 0.01 * shape.length && (bend > 0.0) != clockwise) {
      source.Refuse("turns another way by its PI than by its rot");
    }
  }
  return SpiralBetween(start, end, shape);
}

PlanElement ReadIrregularLine(const Source& source, GroundPosition start, GroundPosition end) {
  const auto list =
      std::find_if(source.node.children.begin(), source.node.children.end(), IsPointList);
  if (list == source.node.children.end()) source.Refuse("has no list of points");
  std::vector<GroundPosition> vertices{start};
  for (const LandXmlPosition& position : source.ground.PositionsOf(*list)) {
    if (position.plan != vertices.back()) vertices.push_back(position.plan);
  }
  if (vertices.size() == 1 || vertices.back() != end) vertices.push_back(end);
  return {PlanPolyline{std::move(vertices)}};
}

LandXmlElement ReadChain(const Source& source) {
  std::vector<GroundPosition> vertices;
  for (const LandXmlPosition& position : source.ground.PositionsOf(source.node)) {
    vertices.push_back(position.plan);
  }
  if (vertices.size() < 2) source.Refuse("names a single point");
  const GroundPosition end = vertices.back();
  return {{PlanPolyline{std::move(vertices)}}, end};
}

}  // namespace

bool IsPlanElement(const XmlNode& node) {
  constexpr std::string_view kNames[] = {"Line", "Curve", "Spiral", "IrregularLine", "Chain"};
  return std::find(std::begin(kNames), std::end(kNames), node.name) != std::end(kNames);
}

LandXmlElement ReadPlanElement(const XmlNode& node, const LandXmlGround& ground,
                               const std::optional<GroundPosition>& before) {
  const Source source{node, ground, before};
  if (node.name == "Chain") return ReadChain(source);
  const GroundPosition start = source.Start();
  const GroundPosition end = source.End();
  if (node.name == "Curve") return {ReadCurve(source, start, end), end};
  if (node.name == "Spiral") return {ReadSpiral(source, start, end), end};
  if (node.name == "IrregularLine") return {ReadIrregularLine(source, start, end), end};
  return {{PlanStraight{start, end}}, end};
}

}  // namespace fieldhost
