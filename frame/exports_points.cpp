// Exported calls on points.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/point_calls.h"

using tavix::Point;
using tavix::Slots;
using tavix::TavixSlot;
using tavix::ToHostString;
using tavix::ToNameView;

int Tavix_EntPnt(int key, int number, CString name, double x, double y) {
  TavixSlot& slot = Slots().Current();
  if (!slot.points) return -1;
  return tavix::EnterPoint(slot, {key, number, ToNameView(name), {x, y}, 0});
}

int Tavix_ChgPntHid(int key, short legend) {
  TavixSlot& slot = Slots().Current();
  return slot.points ? tavix::ChangePointLegend(slot, key, legend) : -1;
}

int Tavix_ChgPntNoNam(int key, int number, CString name) {
  TavixSlot& slot = Slots().Current();
  return slot.points ? tavix::ChangePointNumberAndName(slot, key, number, ToNameView(name)) : -1;
}

int Tavix_ChgPntCrd(int key, double x, double y) {
  TavixSlot& slot = Slots().Current();
  return slot.points ? tavix::ChangePointPlace(slot, key, {x, y}) : -1;
}

int Tavix_GetPntNoNam(int key, int* number, CString* name) {
  TavixSlot& slot = Slots().Current();
  Point point;
  if (!tavix::CanWrite(number, name) || !slot.points || slot.points->Find(key) != 0 ||
      slot.points->GetCur(&point) != 0)
    return -1;
  *number = point.number;
  *name = ToHostString(point.name);
  return 0;
}

int Tavix_GetPntCrd(int key, double* x, double* y) {
  TavixSlot& slot = Slots().Current();
  tavix::GroundPoint at;
  if (!tavix::CanWrite(x, y) || !slot.points || slot.points->Find(key) != 0 ||
      slot.points->GetCurCrd(&at) != 0)
    return -1;
  *x = at.x;
  *y = at.y;
  return 0;
}

int Tavix_DelEntPnt(int key) {
  TavixSlot& slot = Slots().Current();
  if (slot.memos) slot.memos->Remove(key);  // whatever comes of it
  return slot.points ? slot.points->Remove(key) : -1;
}
