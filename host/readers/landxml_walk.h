// What there is to draw in the tree of a LandXML file.
#pragma once

#include "host/readers/landxml_ground.h"
#include "host/readers/read_log.h"
#include "host/readers/survey.h"
#include "host/readers/xml_node.h"

namespace fieldhost {

// Everything below `root`, in the order of the file.
[[nodiscard]] Survey CollectLandXml(const XmlNode& root, const LandXmlGround& ground, ReadLog& log);

}  // namespace fieldhost
