// Exported calls on the paper frame and the scale bar.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "window/overlays/map_surround.h"
#include "window/plot_window.h"

using tavix::ChangeWindow;
using tavix::CPlotWnd;
using tavix::kRefused;
using tavix::OnWindow;

int Tavix_SetWak(BYTE on, int heightPerInch, int heightUnits, int widthPerInch, int widthUnits) {
  return OnWindow([=](CPlotWnd& window) {
    if (on) {
      window.Frame().TurnOn(heightPerInch, heightUnits, widthPerInch, widthUnits);
    } else {
      window.Frame().TurnOff();
    }
    return 0;
  });
}

int Tavix_WakDsp(BYTE show) {
  return OnWindow([=](CPlotWnd& window) {
    window.Frame().SetShown(show != 0);
    return 0;
  });
}

int Tavix_SetWakScl(int N) {
  return ChangeWindow([=](CPlotWnd& window) { return window.Frame().SetScale(N) ? 0 : kRefused; });
}

int Tavix_GetWakScl(int* N) {
  return OnWindow([=](CPlotWnd& window) {
    const auto scale = window.Frame().Scale();
    if (!tavix::CanWrite(N) || !scale) return kRefused;
    *N = *scale;
    return 0;
  });
}

int Tavix_SetWakGen(double X, double Y) {
  return ChangeWindow([=](CPlotWnd& window) {
    return window.Frame().SetOrigin({X, Y}) ? 0 : kRefused;
  });
}

int Tavix_GetWakGen(double* X, double* Y) {
  if (!tavix::CanWrite(X, Y)) return kRefused;
  *X = 0.0;
  *Y = 0.0;
  return OnWindow([=](CPlotWnd& window) {
    const auto origin = window.Frame().Origin();
    if (!origin) return kRefused;
    *X = origin->north;
    *Y = origin->east;
    return 0;
  });
}

int Tavix_SclBarDsp(BYTE show) {
  return OnWindow([=](CPlotWnd& window) {
    window.ScaleBar().SetShown(show != 0);
    return 0;
  });
}
