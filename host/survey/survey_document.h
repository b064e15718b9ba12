// The survey that is open: what its files gave, what the user changed and drew, and what could not
// be shown. Plan and side view are views of it.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <variant>
#include <vector>

#include "host/survey/load_report.h"
#include "host/survey/survey.h"
#include "host/survey/survey_loader.h"

namespace fieldhost {

// The place in the document where an addition begins; it reaches to the end.
struct SurveyAddition {
  std::size_t first_point = 0;
  std::size_t first_parcel = 0;
  std::size_t first_line = 0;
};

// A side of a parcel, by the keys of the points at its ends.
struct ParcelSide {
  int from = 0;
  int to = 0;

  friend auto operator<=>(const ParcelSide&, const ParcelSide&) = default;
};

struct DrawnCircle {
  GroundPosition centre;
  double radius = 0.0;  // metres
};

// A circle or a boundary that the user drew.
struct DrawnFigure {
  int number = 0;
  std::variant<DrawnCircle, PlanPolyline> shape;
};

struct HeightRange {
  std::size_t points = 0;  // that have a height
  double lowest = 0.0;     // metres; both 0 without such points
  double highest = 0.0;
};

// Shows a document. Called after each change.
class SurveyView {
 public:
  virtual void SurveyAdded(const SurveyAddition& addition) = 0;
  virtual void SurveyCleared() = 0;
  virtual void PointMoved(int key) = 0;
  virtual void FigureDrawn(const DrawnFigure&) {}
  virtual void FigureDeleted(int /*number*/) {}

 protected:
  ~SurveyView() = default;
};

// Points have keys and lines have figure numbers, both given here, in the order of entry and up
// from 1. No two figures share a number: a deletion by number
// takes every figure that has it.
class SurveyDocument {
 public:
  SurveyDocument() = default;
  SurveyDocument(const SurveyDocument&) = delete;
  SurveyDocument& operator=(const SurveyDocument&) = delete;

  // A view must be detached before it ends.
  void Attach(SurveyView& view);
  void Detach(SurveyView& view);

  // Adds a load behind what is there. Without anything to draw it changes nothing; nor does it when
  // memory runs out (std::bad_alloc).
  void Add(LoadedSurvey loaded);
  // Empties the document, and starts keys and figure numbers again at 1.
  void Clear();

  [[nodiscard]] const Survey& Contents() const { return survey_; }
  // The key of a point by its place in the contents, and back.
  [[nodiscard]] static int KeyOf(std::size_t place) { return static_cast<int>(place) + 1; }
  [[nodiscard]] static std::size_t PlaceOf(int key) { return static_cast<std::size_t>(key) - 1; }
  // Null for an unknown key, and for a point that was refused.
  [[nodiscard]] const SurveyPoint* FindPoint(int key) const;
  [[nodiscard]] int FigureOf(std::size_t line) const { return line_figures_[line]; }

  // The figure number of a side that is drawn as a figure. Nothing when the side has one already,
  // in either direction: neighbours share it.
  [[nodiscard]] std::optional<int> GiveFigure(const ParcelSide& side);
  // Those sides with their figure numbers.
  [[nodiscard]] const std::map<ParcelSide, int>& SideFigures() const { return side_figures_; }

  // Moves a point in plan; its height stays. False for a key that FindPoint does not know.
  bool MovePoint(int key, const GroundPosition& place);

  void DrawCircle(const DrawnCircle& circle);
  void DrawBoundary(PlanPolyline boundary);
  // False when there is none.
  bool DeleteLastCircle() { return DeleteLast(circles_); }
  bool DeleteLastBoundary() { return DeleteLast(boundaries_); }
  [[nodiscard]] bool HasCircles() const { return !circles_.empty(); }
  [[nodiscard]] bool HasBoundaries() const { return !boundaries_.empty(); }

  // The plan could not show it: it no longer counts. Elements of a line count as skipped.
  void RefusePoint(int key) { refused_points_.insert(key); }
  void RefuseParcel(std::size_t parcel) { refused_parcels_.insert(parcel); }
  void RefuseElements(std::size_t line, std::size_t count) { refused_elements_[line] = count; }

  // What there is to see, and all that was skipped on the way.
  [[nodiscard]] SurveyCounts Counts() const;
  [[nodiscard]] HeightRange Heights() const;

 private:
  void Draw(std::vector<DrawnFigure>& figures, DrawnFigure figure);
  bool DeleteLast(std::vector<DrawnFigure>& figures);
  [[nodiscard]] SurveyCounts Refused() const;

  std::vector<SurveyView*> views_;
  Survey survey_;
  std::vector<int> line_figures_;  // a number for each line
  std::map<ParcelSide, int> side_figures_;
  std::vector<DrawnFigure> circles_;
  std::vector<DrawnFigure> boundaries_;
  int last_figure_ = 0;
  std::size_t skipped_lines_ = 0;
  std::size_t skipped_elements_ = 0;
  std::set<int> refused_points_;                         // keys
  std::set<std::size_t> refused_parcels_;                // places
  std::map<std::size_t, std::size_t> refused_elements_;  // how many, by the line's place
};

}  // namespace fieldhost
