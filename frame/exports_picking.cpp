// Exported calls on what is in view and what the user has tapped.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "view/view_state.h"
#include "window/modes/capture_mode.h"
#include "window/plot_window.h"

using tavix::CPlotWnd;
using tavix::Instance;
using tavix::OnInstance;
using tavix::OnWindow;

int Tavix_ChkCrd(double X, double Y, int* visible) {
  return OnInstance([=](Instance& instance) {
    if (!tavix::CanWrite(visible)) return tavix::kRefused;
    *visible = instance.View().IsPointInView({X, Y}) ? 1 : 0;
    return 0;
  });
}

int Tavix_ChkCir(double X, double Y, double radius, int* visible) {
  return OnInstance([=](Instance& instance) {
    if (!tavix::CanWrite(visible)) return tavix::kRefused;
    *visible = instance.View().IsCircleInView({X, Y}, radius) ? 1 : 0;
    return 0;
  });
}

int Tavix_GetLstPicCrd(int* x, int* y) {
  return OnWindow([=](CPlotWnd& window) {
    if (!tavix::CanWrite(x, y)) return tavix::kRefused;
    const tavix::ScreenPoint tap = window.LastTap();
    *x = tap.x;
    *y = tap.y;
    return tap.y;
  });
}

int Tavix_CrdStt(int command) {
  return OnWindow([=](CPlotWnd& window) {
    window.Capture().Start(command);
    return 0;
  });
}

int Tavix_CrdGet(double* X, double* Y) {
  return OnWindow([=](CPlotWnd& window) {
    const auto& captured = window.Capture().Captured();
    if (!tavix::CanWrite(X, Y) || !captured) return tavix::kRefused;
    *X = captured->north;
    *Y = captured->east;
    return 0;
  });
}

int Tavix_CrdEnd() {
  return OnWindow([](CPlotWnd& window) {
    window.Capture().End();
    return 0;
  });
}
