// Enters surveys into the current plot instance.
#pragma once

#include <map>

#include "host/readers/survey.h"
#include "host/survey_counts.h"

namespace fieldhost {

// Keys and figure numbers are given in the order of entry, up from 1.
class SurveyEntry {
 public:
  // Gives the current instance, which must exist, the host's legends.
  void AddLegends();

  // Enters all points, the lots as lines between them, and all other lines as figures. Returns what
  // the library refused.
  SurveyCounts Enter(const Survey& survey);

  // The next key and figure are 1 again; for an instance that was emptied.
  void StartOver() { next_key_ = next_figure_ = 1; }

 private:
  void EnterLot(const SurveyLot& lot, int first_key);
  [[nodiscard]] SurveyCounts EnterLine(const SurveyLine& line);

  std::map<LineKind, short> line_legends_;
  int next_key_ = 1;
  int next_figure_ = 1;
};

}  // namespace fieldhost
