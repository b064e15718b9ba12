// Exported calls on what is drawn over the plot: a moved point and a traced polyline.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "window/overlays/moved_point.h"
#include "window/overlays/traced_line.h"
#include "window/plot_window.h"

using tavix::ChangeWindow;
using tavix::CPlotWnd;
using tavix::Instance;
using tavix::kRefused;
using tavix::OnInstance;
using tavix::OnWindow;

int Tavix_MvPntStt(int legend) {
  return OnInstance([=](Instance& instance) { return instance.StartMovePoint(legend); });
}

int Tavix_MvPntRub(double X, double Y) {
  return OnWindow([=](CPlotWnd& window) {
    window.Moved().SetAnchor({X, Y});
    return 0;
  });
}

int Tavix_MvPntMov(double X, double Y) {
  return OnWindow([=](CPlotWnd& window) {
    window.Moved().MoveTo({X, Y});
    return 0;
  });
}

int Tavix_MvPntEnd() {
  return OnWindow([](CPlotWnd& window) {
    window.Moved().End();
    return 0;
  });
}

// ---- Traced polyline

int Tavix_VoStt() { return Tavix_VoEnd(); }

int Tavix_VoAdd(double X, double Y) {
  return ChangeWindow([=](CPlotWnd& window) {
    window.Trace().Add({X, Y});
    return 0;
  });
}

int Tavix_VoDel() {
  return ChangeWindow([](CPlotWnd& window) { return window.Trace().RemoveLast() ? 0 : kRefused; });
}

int Tavix_VoGet(int* count) {
  return OnWindow([=](CPlotWnd& window) {
    if (!tavix::CanWrite(count)) return kRefused;
    *count = static_cast<int>(window.Trace().Vertices().size());
    return 0;
  });
}

int Tavix_VoLst(double* X, double* Y) {
  return OnWindow([=](CPlotWnd& window) {
    const auto vertices = window.Trace().Vertices();
    if (!vertices.empty() && !tavix::CanWrite(X, Y)) return kRefused;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
      X[i] = vertices[i].north;
      Y[i] = vertices[i].east;
    }
    return 0;
  });
}

int Tavix_VoIdx(int index, double* X, double* Y) {
  return OnWindow([=](CPlotWnd& window) {
    const auto vertices = window.Trace().Vertices();
    const auto place = static_cast<std::size_t>(index);
    if (!tavix::CanWrite(X, Y) || index < 0 || place >= vertices.size()) return kRefused;
    *X = vertices[place].north;
    *Y = vertices[place].east;
    return 0;
  });
}

int Tavix_VoEnd() {
  return ChangeWindow([](CPlotWnd& window) {
    window.Trace().End();
    return 0;
  });
}
