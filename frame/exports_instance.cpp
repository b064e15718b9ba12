// Exported calls on the instance and its window.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/library_entry.h"
#include "frame/slot_table.h"
#include "window/plot_window.h"

using tavix::ChangeInstance;
using tavix::CPlotWnd;
using tavix::Instance;
using tavix::OnInstance;
using tavix::OnWindow;
using tavix::Slots;

void Tavix_SetIdx(int index) { Slots().SetIndex(index); }

void Tavix_GetIdx(int* index) {
  if (tavix::CanWrite(index)) *index = Slots().Index();
}

int Tavix_Crt() {
  tavix::ChainResources();
  return Slots().Create() ? 0 : tavix::kRefused;
}

int Tavix_Del() {
  Slots().Delete();
  return 0;
}

int Tavix_Lnk(CWnd* parent, UINT controlId, UINT notifyId) {
  return OnInstance([=](Instance& instance) {
    return instance.LinkWindow(notifyId, [=](CPlotWnd& window) {
      return window.CreateOverControl(parent, controlId) != FALSE;
    });
  });
}

int Tavix_LnkRct(CWnd* parent, int left, int top, int right, int bottom, UINT notifyId) {
  return OnInstance([=](Instance& instance) {
    return instance.LinkWindow(notifyId, [=](CPlotWnd& window) {
      return window.CreateInRect(parent, CRect(left, top, right, bottom)) != FALSE;
    });
  });
}

CWnd* Tavix_Wnd() {
  Instance* instance = Slots().Current();
  return instance ? instance->Window() : nullptr;
}

int Tavix_Dsp(BYTE show) {
  return OnWindow([=](CPlotWnd& window) {
    if (window.m_hWnd) window.ShowWindow(show ? SW_SHOW : SW_HIDE);
    return 0;
  });
}

// The next three have nothing to refuse: without an instance there is nothing to set.

int Tavix_Dsp3D(BYTE on) {
  if (Instance* instance = Slots().Current()) instance->ShowSideView(on != 0);
  return 0;
}

int Tavix_SetBtn(BYTE show) {
  if (Instance* instance = Slots().Current()) instance->ShowButtons(show != 0);
  return 0;
}

int Tavix_DrwFlg(BYTE on) {
  if (Instance* instance = Slots().Current()) instance->SetAutoRedraw(on != 0);
  return 0;
}

int Tavix_Drw(BYTE keepView) {
  return OnInstance([=](Instance& instance) { return instance.Redraw(keepView != 0); });
}

int Tavix_DrwClr() {
  return ChangeInstance([](Instance& instance) { return instance.Clear(); });
}
