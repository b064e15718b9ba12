// How much there is of a survey.
#pragma once

#include <cstddef>

#include "host/survey/survey.h"

namespace fieldhost {

struct SurveyCounts {
  std::size_t points = 0;
  std::size_t lots = 0;       // those with corners and those with an outline
  std::size_t polylines = 0;  // lines other than lots and alignments
  std::size_t alignment_elements = 0;
  std::size_t skipped_lines = 0;     // of files that are read line by line
  std::size_t skipped_elements = 0;  // of files made of elements, and what could not be drawn

  SurveyCounts& operator+=(const SurveyCounts& other);

  // Takes out what a plot would not have; lines it refused count as skipped.
  void TakeOut(const SurveyCounts& refused);
};

// A line as it counts: an alignment by its elements, any other as one.
[[nodiscard]] SurveyCounts CountsOf(const SurveyLine& line);

[[nodiscard]] SurveyCounts CountsOf(const Survey& survey);

}  // namespace fieldhost
