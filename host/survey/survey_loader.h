// Survey files from disk, joined to one survey.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "host/formats/read_log.h"
#include "host/survey/survey.h"

namespace fieldhost {

struct LoadedSurvey {
  Survey survey;                        // of all files that could be read, in their order
  std::vector<std::string> refusals;    // one sentence for each file that could not
  std::vector<Diagnostic> diagnostics;  // about lines or elements of files that could
  std::size_t skipped_lines = 0;
  std::size_t skipped_elements = 0;
};

// Reads the files one after the other. A file without anything to draw is refused.
[[nodiscard]] LoadedSurvey LoadSurveyFiles(std::span<const std::filesystem::path> files);

// Adds points, parcels and lines behind those that are there. When memory runs out
// (std::bad_alloc) the survey is as it was.
void Append(Survey addition, Survey& survey);

}  // namespace fieldhost
