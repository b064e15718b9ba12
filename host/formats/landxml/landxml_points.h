// Survey points of a LandXML file.
#pragma once

#include <string_view>
#include <vector>

#include "host/formats/landxml/landxml_ground.h"
#include "host/formats/xml/xml_node.h"
#include "host/survey/survey.h"

namespace fieldhost {

// All throw LandXmlFault where a position is missing.

// A CgPoint. Its kind is its code, else its description, else those of its group.
[[nodiscard]] SurveyPoint ReadCgPoint(const XmlNode& node, const LandXmlGround& ground,
                                      std::string_view group_kind);

// A Struct of a pipe network, by its Center.
[[nodiscard]] SurveyPoint ReadStruct(const XmlNode& node, const LandXmlGround& ground);

// The points of a surface's DataPoints, numbered from 1.
[[nodiscard]] std::vector<SurveyPoint> ReadDataPoints(const XmlNode& node,
                                                      const LandXmlGround& ground);

}  // namespace fieldhost
