// The elements of a LandXML CoordGeom: Line, Curve, Spiral, IrregularLine and Chain.
#pragma once

#include <optional>

#include "host/formats/landxml/landxml_ground.h"
#include "host/formats/xml/xml_node.h"
#include "host/survey/ground_geometry.h"
#include "host/survey/survey.h"

namespace fieldhost {

struct LandXmlElement {
  PlanElement pieces;
  GroundPosition end;  // the start of a next element that gives none
};

[[nodiscard]] bool IsPlanElement(const XmlNode& node);

// Reads one element, which begins at `before` unless it gives its start. Throws LandXmlFault for
// one that lacks something, contradicts itself, or is a spiral other than a clothoid.
[[nodiscard]] LandXmlElement ReadPlanElement(const XmlNode& node, const LandXmlGround& ground,
                                             const std::optional<GroundPosition>& before);

}  // namespace fieldhost
