// A survey file of any format we read.
#pragma once

#include <string_view>

#include "host/readers/read_log.h"
#include "host/readers/survey.h"

namespace fieldhost {

// Reads a file's bytes. XML is LandXML; a file named *.sim, or one that begins like it, is SIMA;
// any other is taken for a coordinate list. The survey is empty when the file is none of them.
[[nodiscard]] Survey ReadSurvey(std::string_view file_name, std::string_view bytes, ReadLog& log);

}  // namespace fieldhost
