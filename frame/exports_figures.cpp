// Exported calls on figures.
#include <tavix/tavix.h>

#include <array>
#include <vector>

#include "figure/arc.h"
#include "figure/clothoid.h"
#include "frame/redraw.h"
#include "frame/slot_table.h"

using tavix::CFigList;
using tavix::GroundPoint;
using tavix::Slots;

namespace {

// The current instance's figures; null when there can be none, without an instance or without the
// files in which figures live.
CFigList* Figures() {
  CFigList* figures = Slots().Current().figures.get();
  return figures && figures->IsOpen() ? figures : nullptr;
}

}  // namespace

int Tavix_FigStt(int figure, int legend) {
  CFigList* figures = Figures();
  if (!figures) return -1;
  figures->SetPending(figure, legend);
  return 0;
}

int Tavix_FigMdlLin(double x1, double y1, double x2, double y2) {
  CFigList* figures = Figures();
  if (!figures) return -1;
  figures->AddPolyline(std::array<GroundPoint, 2>{{{x1, y1}, {x2, y2}}}, 2);
  return 0;
}

int Tavix_FigMdlCir(double x, double y, double radius) {
  CFigList* figures = Figures();
  if (!figures) return -1;
  figures->AddCircle({x, y}, radius);
  return 0;
}

int Tavix_FigMdlPly(int count, const double* x, const double* y) {
  CFigList* figures = Figures();
  if (!figures || (count > 0 && (!x || !y))) return -1;
  std::vector<GroundPoint> points;
  for (int i = 0; i < count; ++i) points.push_back({x[i], y[i]});
  figures->AddPolyline(points, count);
  return 0;
}

int Tavix_FigMdlArc(double startX, double startY, double endX, double endY, double radius) {
  CFigList* figures = Figures();
  return figures ? figures->AddCurve(tavix::BuildArc({startX, startY}, {endX, endY}, radius)) : -1;
}

int Tavix_FigMdlClo(double startX, double startY, double endX, double endY, double startRadius,
                    double A, double endRadius) {
  CFigList* figures = Figures();
  if (!figures) return -1;
  return figures->AddCurve(
      tavix::BuildClothoid({startX, startY}, {endX, endY}, startRadius, A, endRadius));
}

int Tavix_FigEnd() {
  CFigList* figures = Figures();
  if (!figures) return -1;
  figures->SetChanged(true);
  tavix::RedrawAfterChange(Slots().Current(), 0);
  return 0;
}

int Tavix_DelFig(int figure) {
  CFigList* figures = Figures();
  if (!figures || figures->Delete(figure) != 0) return -1;
  tavix::RedrawAfterChange(Slots().Current(), 0);
  return 0;
}
