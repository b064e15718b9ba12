// The survey files that we read.
#pragma once

#include <span>
#include <string_view>

#include "host/formats/read_log.h"
#include "host/survey/survey.h"

namespace fieldhost {

// One format. The table of them is the only place that names it: the open dialog and the sentence
// for a file that holds nothing follow from it.
struct SurveyFormat {
  std::string_view name;                       // as a user knows it
  std::span<const std::string_view> endings;   // of file names, small letters, the usual one first
  std::string_view choice;                     // what to choose, within a sentence
  bool (*recognises)(std::string_view bytes);  // by the beginning of the file
  Survey (*read)(std::string_view bytes, ReadLog& log);
};

// In the order in which they are tried. The last recognises anything.
[[nodiscard]] std::span<const SurveyFormat> SurveyFormats();

// Reads a file's bytes in the first format that has its ending or recognises it. The survey is
// empty for a file of another kind.
[[nodiscard]] Survey ReadSurvey(std::string_view file_name, std::string_view bytes, ReadLog& log);

}  // namespace fieldhost
