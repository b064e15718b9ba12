#include "host/tools/drawn_figures.h"

#include <tavix/tavix.h>

#include "host/plot/plot_pane.h"

namespace fieldhost {

int DrawnFigures::Start() {
  Tavix_FigStt(--last_, legend_);
  return last_;
}

void DrawnFigures::AddCircle(const GroundPosition& centre, double radius) {
  circles_.push_back(Start());
  Tavix_FigMdlCir(centre.north, centre.east, radius);
  Tavix_FigEnd();
  PlotPane::Redraw();
}

void DrawnFigures::AddBoundary(std::span<const GroundPosition> corners) {
  std::vector<double> north;
  std::vector<double> east;
  for (const GroundPosition& corner : corners) {
    north.push_back(corner.north);
    east.push_back(corner.east);
  }
  boundaries_.push_back(Start());
  Tavix_FigMdlPly(static_cast<int>(corners.size()), north.data(), east.data());
  Tavix_FigEnd();
  PlotPane::Redraw();
}

bool DrawnFigures::DeleteLast(std::vector<int>& figures) {
  if (figures.empty()) return false;
  Tavix_DelFig(figures.back());
  figures.pop_back();
  PlotPane::Redraw();
  return true;
}

void DrawnFigures::Forget() {
  circles_.clear();
  boundaries_.clear();
}

}  // namespace fieldhost
