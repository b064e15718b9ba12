// LandXML, the exchange format of road and survey design: points, alignments, and lines of
// surfaces, plans, parcels and pipe networks. Profiles, cross sections, triangles and observations
// are left out.
#pragma once

#include <string_view>

#include "host/formats/read_log.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Reads a file's bytes. Elements that lack something or contradict themselves are skipped and
// logged. Refuses, in the log, damaged XML, XML other than LandXML, and unknown units.
[[nodiscard]] Survey ReadLandXml(std::string_view bytes, ReadLog& log);

}  // namespace fieldhost
