// Exported calls on 3-D points.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"

using tavix::CPnt3List;
using tavix::Slots;
using tavix::TavixSlot;
using tavix::ToNameView;

namespace {

// The current instance's 3-D store with the point of this key current, or null.
CPnt3List* Find(int key) {
  CPnt3List* points = Slots().Current().points3.get();
  return points && points->Find(key) == 0 ? points : nullptr;
}

}  // namespace

int Tavix_EntPnt3(int key, int number, CString name, double x, double y, double z) {
  TavixSlot& slot = Slots().Current();
  if (!slot.points3) return -1;
  const short legend = slot.selected_point_legend;
  if (slot.points3->Find(key) == 0) {
    return slot.points3->SetCur(number, ToNameView(name), {x, y}, z, legend);
  }
  return slot.points3->Add({key, number, ToNameView(name), {x, y}, z, legend});
}

int Tavix_ChgPnt3Hid(int key, short legend) {
  CPnt3List* points = Find(key);
  return points ? points->SetCurHan(legend) : -1;
}

int Tavix_ChgPnt3NoNam(int key, int number, CString name) {
  CPnt3List* points = Find(key);
  return points ? points->SetCurNoNam(number, ToNameView(name)) : -1;
}

int Tavix_GetPnt3NoNam(int key, int* number, CString* name) {
  const CPnt3List* points = Find(key);
  tavix::Point3 point;
  if (!tavix::CanWrite(number, name) || !points || points->GetCur(&point) != 0) return -1;
  *number = point.number;
  *name = tavix::ToHostString(point.name);
  return 0;
}

int Tavix_GetPnt3Crd(int key, double* x, double* y, double* z) {
  const CPnt3List* points = Find(key);
  tavix::GroundPoint at;
  if (!tavix::CanWrite(x, y, z) || !points || points->GetCurCrd(&at, z) != 0) return -1;
  *x = at.x;
  *y = at.y;
  return 0;
}

int Tavix_DelEntPnt3(int key) {
  CPnt3List* points = Slots().Current().points3.get();
  return points ? points->Remove(key) : -1;
}
