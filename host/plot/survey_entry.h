// Enters surveys into the current plot instance.
#pragma once

#include <map>
#include <utility>

#include "host/survey/ground_position.h"
#include "host/survey/survey.h"
#include "host/survey/survey_counts.h"

namespace fieldhost {

// Keys and figure numbers are given in the order of entry, up from 1.
class SurveyEntry {
 public:
  // Gives the current instance, which must exist, the host's legends.
  void AddLegends();

  // Enters all points, the lots as lines between them, and all other lines as figures. Returns what
  // the library refused.
  SurveyCounts Enter(const Survey& survey);

  // Moves a point; the sides of lots that end there follow it. False for an unknown key.
  bool MovePoint(int key, const GroundPosition& place);

  // The next key and figure are 1 again; for an instance that was emptied.
  void StartOver();

 private:
  using Side = std::pair<int, int>;  // the keys of its ends, as entered

  bool EnterLot(const SurveyLot& lot, int first_key);
  bool EnterSide(const Side& side);
  bool EnterAsFigure(const Side& side, int figure);
  [[nodiscard]] SurveyCounts EnterLine(const SurveyLine& line);

  std::map<LineKind, short> line_legends_;
  std::map<Side, int> figure_sides_;  // figure numbers of the sides that no line can be
  int next_key_ = 1;
  int next_figure_ = 1;
};

}  // namespace fieldhost
