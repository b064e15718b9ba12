// Exported calls on figures.
#include <tavix/tavix.h>

#include <array>
#include <vector>

#include "figure/curves/arc.h"
#include "figure/curves/clothoid.h"
#include "figure/figure_list.h"
#include "frame/slot_table.h"

using tavix::CFigList;
using tavix::GroundPoint;
using tavix::Instance;
using tavix::kRefused;
using tavix::OnInstance;

namespace {

// Has `call` answer for the current instance's figures, and refuses where there can be none:
// without an instance, or without the files in which figures live.
template <class Call>
int OnFigures(Call call) {
  return OnInstance([&](Instance& instance) {
    return instance.Figures().IsTaken() ? kRefused : call(instance.Figures());
  });
}

}  // namespace

int Tavix_FigStt(int figure, int legend) {
  return OnFigures([=](CFigList& figures) {
    figures.SetPending(figure, legend);
    return 0;
  });
}

int Tavix_FigMdlLin(double x1, double y1, double x2, double y2) {
  return OnFigures([=](CFigList& figures) {
    figures.AddPolyline(std::array<GroundPoint, 2>{{{x1, y1}, {x2, y2}}}, 2);
    return 0;
  });
}

int Tavix_FigMdlCir(double x, double y, double radius) {
  return OnFigures([=](CFigList& figures) {
    figures.AddCircle({x, y}, radius);
    return 0;
  });
}

int Tavix_FigMdlPly(int count, const double* x, const double* y) {
  return OnFigures([=](CFigList& figures) {
    if (count > 0 && (!x || !y)) return kRefused;
    std::vector<GroundPoint> points;
    for (int i = 0; i < count; ++i) points.push_back({x[i], y[i]});
    figures.AddPolyline(points, count);
    return 0;
  });
}

int Tavix_FigMdlArc(double startX, double startY, double endX, double endY, double radius) {
  return OnFigures([=](CFigList& figures) {
    return figures.AddCurve(tavix::BuildArc({startX, startY}, {endX, endY}, radius));
  });
}

int Tavix_FigMdlClo(double startX, double startY, double endX, double endY, double startRadius,
                    double A, double endRadius) {
  return OnFigures([=](CFigList& figures) {
    return figures.AddCurve(
        tavix::BuildClothoid({startX, startY}, {endX, endY}, startRadius, A, endRadius));
  });
}

int Tavix_FigEnd() {
  return OnInstance([](Instance& instance) { return instance.EndFigure(); });
}

int Tavix_DelFig(int figure) {
  return OnInstance([=](Instance& instance) { return instance.DeleteFigure(figure); });
}
