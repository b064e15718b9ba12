#include "host/plot/figure_entry.h"

#include <tavix/tavix.h>

#include <algorithm>
#include <vector>

namespace fieldhost {
namespace {

// Each call returns 0 when the piece was entered.
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
};

bool EnterElement(const PlanElement& element) {
  return std::count_if(element.begin(), element.end(), [](const PlanPiece& piece) {
           return std::visit(PieceEntry(), piece) != 0;
         }) == 0;
}

}  // namespace

std::size_t EnterFigure(const SurveyLine& line, int figure, short legend) {
  Tavix_FigStt(figure, legend);
  std::size_t refused = 0;
  for (const PlanElement& element : line.elements) {
    if (!EnterElement(element)) ++refused;
  }
  Tavix_FigEnd();
  return refused;
}

}  // namespace fieldhost
