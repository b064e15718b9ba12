// What there is to draw in the tree of a LandXML file.
#pragma once

#include "host/formats/landxml/landxml_ground.h"
#include "host/formats/read_log.h"
#include "host/formats/xml/xml_node.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Everything below `root`, in the order of the file.
[[nodiscard]] Survey CollectLandXml(const XmlNode& root, const LandXmlGround& ground, ReadLog& log);

}  // namespace fieldhost
