#include "host/plot/survey_entry.h"

#include <tavix/tavix.h>

#include <algorithm>
#include <variant>
#include <vector>

#include "host/app/display_text.h"

namespace fieldhost {
namespace {

// A line keeps 16 bits of a key: with a larger one it would join other points.
bool CanEndALine(int key) { return key <= kTavixLargestLineKey; }

// Enters a piece of the figure that is started. Each call returns 0 when the piece was entered.
struct PieceEntry {
  int operator()(const PlanStraight& line) const {
    return Tavix_FigMdlLin(line.from.north, line.from.east, line.to.north, line.to.east);
  }
  int operator()(const PlanArc& arc) const {
    return Tavix_FigMdlArc(arc.from.north, arc.from.east, arc.to.north, arc.to.east, arc.radius);
  }
  int operator()(const PlanClothoid& clothoid) const {
    return Tavix_FigMdlClo(clothoid.from.north, clothoid.from.east, clothoid.to.north,
                           clothoid.to.east, clothoid.start_radius, clothoid.parameter,
                           clothoid.end_radius);
  }
  int operator()(const PlanPolyline& polyline) const {
    std::vector<double> x;
    std::vector<double> y;
    for (const GroundPosition& vertex : polyline.vertices) {
      x.push_back(vertex.north);
      y.push_back(vertex.east);
    }
    return Tavix_FigMdlPly(static_cast<int>(x.size()), x.data(), y.data());
  }
  int operator()(const DrawnCircle& circle) const {
    return Tavix_FigMdlCir(circle.centre.north, circle.centre.east, circle.radius);
  }
};

bool EnterElement(const PlanElement& element) {
  return std::count_if(element.begin(), element.end(), [](const PlanPiece& piece) {
           return std::visit(PieceEntry(), piece) != 0;
         }) == 0;
}

}  // namespace

SurveyEntry::SurveyEntry(SurveyDocument& document) : document_(document) {
  PreparePointLegends();
  legends_ = AddPlanLegends();
}

void SurveyEntry::Enter(const SurveyAddition& addition) {
  const Survey& survey = document_.Contents();
  for (std::size_t i = addition.first_point; i < survey.points.size(); ++i) EnterPoint(i);
  Tavix_SelLinHan(legends_.lines[LineKind::kParcel]);
  for (std::size_t i = addition.first_parcel; i < survey.parcels.size(); ++i) EnterParcel(i);
  for (std::size_t i = addition.first_line; i < survey.lines.size(); ++i) EnterLine(i);
}

void SurveyEntry::EnterPoint(std::size_t point) {
  const SurveyPoint& entered = document_.Contents().points[point];
  const int key = SurveyDocument::KeyOf(point);
  Tavix_SelPntHan(PointLegend(entered.kind));
  if (Tavix_EntPnt(key, entered.number, WideOf(entered.name), entered.north, entered.east) != 0) {
    document_.RefusePoint(key);
  }
}

// Each vertex is joined to the next, and the last to the first where the parcel is closed.
void SurveyEntry::EnterParcel(std::size_t parcel) {
  const auto& [name, closed, vertices] = document_.Contents().parcels[parcel];
  bool entered = true;
  const std::size_t sides = vertices.size() - (closed || vertices.empty() ? 0 : 1);
  for (std::size_t i = 0; i < sides; ++i) {
    const ParcelSide side{SurveyDocument::KeyOf(vertices[i]),
                          SurveyDocument::KeyOf(vertices[(i + 1) % vertices.size()])};
    if (!EnterSide(side)) entered = false;
  }
  if (!entered) document_.RefuseParcel(parcel);
}

// A figure is drawn as a line is.
bool SurveyEntry::EnterSide(const ParcelSide& side) {
  if (side.from == side.to) return true;
  if (CanEndALine(side.from) && CanEndALine(side.to)) return Tavix_EntLin(side.from, side.to) == 0;
  const std::optional<int> figure = document_.GiveFigure(side);
  return !figure || EnterAsFigure(side, *figure);
}

bool SurveyEntry::EnterAsFigure(const ParcelSide& side, int figure) {
  const SurveyPoint* const from = document_.FindPoint(side.from);
  const SurveyPoint* const to = document_.FindPoint(side.to);
  if (!from || !to) return false;
  Tavix_FigStt(figure, legends_.lines[LineKind::kParcel]);
  const int refused = PieceEntry()(PlanStraight{from->Position(), to->Position()});
  Tavix_FigEnd();
  return refused == 0;
}

void SurveyEntry::EnterLine(std::size_t line) {
  const SurveyLine& entered = document_.Contents().lines[line];
  Tavix_FigStt(document_.FigureOf(line), legends_.lines[entered.kind]);
  std::size_t refused = 0;
  for (const PlanElement& element : entered.elements) {
    if (!EnterElement(element)) ++refused;
  }
  Tavix_FigEnd();
  if (refused > 0) document_.RefuseElements(line, refused);
}

void SurveyEntry::Enter(const DrawnFigure& figure) {
  Tavix_FigStt(figure.number, legends_.drawn_figure);
  std::visit(PieceEntry(), figure.shape);
  Tavix_FigEnd();
}

// Lines follow their points, figures do not.
void SurveyEntry::FollowPoint(int key) {
  const SurveyPoint* const point = document_.FindPoint(key);
  if (!point) return;
  Tavix_ChgPntCrd(key, point->north, point->east);
  for (const auto& [side, figure] : document_.SideFigures()) {
    if (side.from != key && side.to != key) continue;
    Tavix_DelFig(figure);
    EnterAsFigure(side, figure);
  }
}

}  // namespace fieldhost
