// What the user reads about a load: how much there is, and what went wrong.
#pragma once

#include <cstddef>
#include <string>

#include "host/formats/read_log.h"
#include "host/survey/survey.h"
#include "host/survey/survey_loader.h"

namespace fieldhost {

struct SurveyCounts {
  std::size_t points = 0;
  std::size_t parcels = 0;    // those with vertices and those with an outline
  std::size_t polylines = 0;  // lines other than parcels and alignments
  std::size_t alignment_elements = 0;
  std::size_t skipped_lines = 0;     // of files that are read line by line
  std::size_t skipped_elements = 0;  // of files made of elements, and what could not be drawn

  // Counts a line of so many elements: an alignment by its elements, any other as one.
  void CountLine(LineKind kind, std::size_t elements);
};

// What a survey holds; nothing is skipped.
[[nodiscard]] SurveyCounts CountsOf(const Survey& survey);

// "610 points, 1 parcel, 2 lines skipped". Zero counts are left out, except the points of a survey
// that has nothing else.
[[nodiscard]] std::string Summary(const SurveyCounts& counts);

// "site.csv, line 12: the northing 'abc' is not a number."
[[nodiscard]] std::string Sentence(const Diagnostic& diagnostic);

// All that went wrong, a sentence a line: the refused files, then at most `most_lines` of the
// skipped lines and elements. Empty when all went well.
[[nodiscard]] std::string Complaints(const LoadedSurvey& loaded, std::size_t most_lines);

}  // namespace fieldhost
