// Exported calls on points, their memos, and 3-D points.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "store/point3_list.h"
#include "store/point_list.h"

using tavix::ChangeInstance;
using tavix::Instance;
using tavix::kRefused;
using tavix::OnInstance;
using tavix::ToHostString;
using tavix::ToNameView;

int Tavix_EntPnt(int key, int number, CString name, double x, double y) {
  return OnInstance([&](Instance& instance) {
    return instance.EnterPoint({key, number, ToNameView(name), {x, y}, 0});
  });
}

int Tavix_ChgPntHid(int key, short legend) {
  return OnInstance([=](Instance& instance) { return instance.ChangePointLegend(key, legend); });
}

int Tavix_ChgPntNoNam(int key, int number, CString name) {
  return OnInstance([&](Instance& instance) {
    return instance.ChangePointNumberAndName({key, number, ToNameView(name), {}, 0});
  });
}

int Tavix_ChgPntCrd(int key, double x, double y) {
  return OnInstance([=](Instance& instance) {
    return instance.ChangePointPosition({key, 0, {}, {x, y}, 0});
  });
}

int Tavix_GetPntNoNam(int key, int* number, CString* name) {
  if (!tavix::CanWrite(number, name)) return kRefused;
  return OnInstance([=](Instance& instance) {
    const auto point = instance.FindPoint(key);
    if (!point) return kRefused;
    *name = ToHostString(point->name);  // first: only the name may need memory
    *number = point->number;
    return 0;
  });
}

int Tavix_GetPntCrd(int key, double* x, double* y) {
  if (!tavix::CanWrite(x, y)) return kRefused;
  return OnInstance([=](Instance& instance) {
    const auto at = instance.FindPointPosition(key);
    if (!at) return kRefused;
    *x = at->north;
    *y = at->east;
    return 0;
  });
}

int Tavix_DelEntPnt(int key) {
  return ChangeInstance([=](Instance& instance) { return instance.RemovePoint(key); });
}

// ---- Memos

int Tavix_EntPntMem(int key, CString memo) {
  return OnInstance([&](Instance& instance) { return instance.EnterMemo(key, memo); });
}

int Tavix_GetPntMem(int key, CString* memo) {
  if (!tavix::CanWrite(memo)) return kRefused;
  memo->Empty();
  // The answer is 0 even where there is no memo to read.
  OnInstance([=](Instance& instance) { return instance.ReadMemo(key, memo); });
  return 0;
}

// ---- 3-D points

int Tavix_EntPnt3(int key, int number, CString name, double x, double y, double z) {
  return ChangeInstance([&](Instance& instance) {
    return instance.EnterPoint3({key, number, ToNameView(name), {x, y}, z, 0});
  });
}

int Tavix_ChgPnt3Hid(int key, short legend) {
  return ChangeInstance(
      [=](Instance& instance) { return instance.ChangePoint3Legend(key, legend); });
}

int Tavix_ChgPnt3NoNam(int key, int number, CString name) {
  return ChangeInstance([&](Instance& instance) {
    return instance.ChangePoint3NumberAndName({key, number, ToNameView(name), {}, 0.0, 0});
  });
}

int Tavix_GetPnt3NoNam(int key, int* number, CString* name) {
  if (!tavix::CanWrite(number, name)) return kRefused;
  return OnInstance([=](Instance& instance) {
    const auto point = instance.FindPoint3(key);
    if (!point) return kRefused;
    *name = ToHostString(point->name);  // first: only the name may need memory
    *number = point->number;
    return 0;
  });
}

int Tavix_GetPnt3Crd(int key, double* x, double* y, double* z) {
  if (!tavix::CanWrite(x, y, z)) return kRefused;
  return OnInstance([=](Instance& instance) {
    const auto point = instance.FindPoint3(key);
    if (!point) return kRefused;
    *x = point->at.north;
    *y = point->at.east;
    *z = point->z;
    return 0;
  });
}

int Tavix_DelEntPnt3(int key) {
  return ChangeInstance([=](Instance& instance) { return instance.RemovePoint3(key); });
}
