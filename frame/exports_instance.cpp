// Exported calls on the instance and its window.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/library_entry.h"
#include "frame/redraw.h"
#include "frame/slot_table.h"

using tavix::CPlotWnd;
using tavix::Slots;
using tavix::TavixSlot;

namespace {

// Makes a new window for the current instance and has `create` give it its place. The button flag
// is applied whatever comes of it.
template <class Create>
int LinkWindow(UINT notify_id, Create create) {
  TavixSlot& slot = Slots().Current();
  if (!slot.in_use) return -1;
  if (slot.window) slot.window->DestroyWindow();
  slot.window = std::make_unique<CPlotWnd>(notify_id);
  slot.window->Link({slot.view.get(), slot.points.get(), slot.points3.get(), slot.lines.get(),
                     slot.figures.get(), slot.legend.get()});
  const bool created = create(*slot.window) != FALSE;
  slot.window->ApplyButtonFlag(slot.show_buttons);
  return created ? 0 : -1;
}

}  // namespace

void Tavix_SetIdx(int index) { Slots().SetIndex(index); }

void Tavix_GetIdx(int* index) {
  if (tavix::CanWrite(index)) *index = Slots().Index();
}

int Tavix_Crt() {
  tavix::ChainResources();
  TavixSlot& slot = Slots().Current();
  if (slot.in_use) return -1;
  slot.Create(Slots().Index());
  return 0;
}

int Tavix_Del() {
  Slots().Current().Destroy();
  Slots().SelectHighestInUse();
  return 0;
}

int Tavix_Lnk(CWnd* parent, UINT controlId, UINT notifyId) {
  return LinkWindow(notifyId,
                    [=](CPlotWnd& window) { return window.CreateOverControl(parent, controlId); });
}

int Tavix_LnkRct(CWnd* parent, int left, int top, int right, int bottom, UINT notifyId) {
  return LinkWindow(notifyId, [=](CPlotWnd& window) {
    return window.CreateInRect(parent, CRect(left, top, right, bottom));
  });
}

CWnd* Tavix_Wnd() { return Slots().Current().window.get(); }

int Tavix_Dsp(BYTE show) {
  CPlotWnd* window = Slots().Current().window.get();
  if (!window) return -1;
  if (window->m_hWnd) window->ShowWindow(show ? SW_SHOW : SW_HIDE);
  return 0;
}

int Tavix_Dsp3D(BYTE on) {
  TavixSlot& slot = Slots().Current();
  if (slot.window) slot.window->SetDisplay3D(on != 0);
  if (slot.view) slot.view->SetAngle(0);
  return 0;
}

int Tavix_SetBtn(BYTE show) {
  TavixSlot& slot = Slots().Current();
  slot.show_buttons = show != 0;
  if (slot.window) slot.window->ApplyButtonFlag(slot.show_buttons);
  return 0;
}

int Tavix_DrwFlg(BYTE on) {
  Slots().Current().auto_redraw = on != 0;
  return 0;
}

int Tavix_Drw(BYTE keepView) { return tavix::RedrawSlot(Slots().Current(), keepView != 0); }

int Tavix_DrwClr() { return Slots().Current().Clear(); }
