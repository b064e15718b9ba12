// Enters a document into the plan's instance.
#pragma once

#include <cstddef>

#include "host/plot/plot_legends.h"
#include "host/survey/survey_document.h"

namespace fieldhost {

// Works on the current instance, which must exist throughout. Reports to the document what the
// library refuses.
class SurveyEntry {
 public:
  // Adds the host's legends to the instance. The document must outlive the object.
  explicit SurveyEntry(SurveyDocument& document);

  [[nodiscard]] const PlanLegends& Legends() const { return legends_; }

  // Enters all points, the parcels as lines between them, and all other lines as figures.
  void Enter(const SurveyAddition& addition);
  void Enter(const DrawnFigure& figure);

  // Moves a point to where the document has it; the sides of parcels that end there follow.
  void FollowPoint(int key);

 private:
  void EnterPoint(std::size_t point);
  void EnterParcel(std::size_t parcel);
  void EnterLine(std::size_t line);
  bool EnterSide(const ParcelSide& side);
  bool EnterAsFigure(const ParcelSide& side, int figure);

  SurveyDocument& document_;
  PlanLegends legends_;
};

}  // namespace fieldhost
