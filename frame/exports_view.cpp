// Exported calls on the view: angle, ratio, zoom and pan.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "view/view_state.h"
#include "window/navigation.h"
#include "window/plot_window.h"

using tavix::ChangeInstance;
using tavix::ChangeWindow;
using tavix::CPlotWnd;
using tavix::Instance;
using tavix::OnInstance;
using tavix::OnWindow;

int Tavix_SetAng(int degrees) {
  return ChangeInstance([=](Instance& instance) { return instance.View().SetAngle(degrees); });
}

int Tavix_GetAng(int* degrees) {
  return OnInstance([=](Instance& instance) {
    if (!tavix::CanWrite(degrees)) return tavix::kRefused;
    *degrees = instance.View().Angle();
    return 0;
  });
}

int Tavix_SetTatYok(int tate, int yoko) {
  return ChangeWindow([=](CPlotWnd& window) {
    window.Navigate().SetRatio(tate, yoko);
    return 0;
  });
}

int Tavix_GetTatYok(int* tate, int* yoko) {
  return OnWindow([=](CPlotWnd& window) {
    if (!tavix::CanWrite(tate, yoko)) return tavix::kRefused;
    const tavix::RatioSetting& ratio = window.Navigate().Ratio();
    *tate = ratio.vertical;
    *yoko = ratio.horizontal;
    return ratio.given ? 0 : tavix::kRefused;
  });
}

int Tavix_Zom(double X1, double Y1, double X2, double Y2) {
  return OnWindow([=](CPlotWnd& window) {
    return window.Navigate().ZoomToBox({X1, Y1}, {X2, Y2});
  });
}

int Tavix_Zom1(double X, double Y, double radius) {
  return OnWindow([=](CPlotWnd& window) { return window.Navigate().ZoomToCircle({X, Y}, radius); });
}

int Tavix_Pan(double X, double Y) {
  return OnWindow([=](CPlotWnd& window) { return window.Navigate().PanTo({X, Y}); });
}

int Tavix_Mov() { return 0; }
