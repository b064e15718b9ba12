// Exported calls on points, their memos, and 3-D points.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "store/mem_db.h"
#include "store/point3_list.h"
#include "store/point_list.h"

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
  return OnInstance([=](Instance& instance) {
    tavix::CPntList& points = instance.Points();
    tavix::Point point;
    if (!tavix::CanWrite(number, name) || points.Find(key) != 0 || points.GetCur(&point) != 0) {
      return kRefused;
    }
    *number = point.number;
    *name = ToHostString(point.name);
    return 0;
  });
}

int Tavix_GetPntCrd(int key, double* x, double* y) {
  return OnInstance([=](Instance& instance) {
    tavix::CPntList& points = instance.Points();
    tavix::GroundPoint at;
    if (!tavix::CanWrite(x, y) || points.Find(key) != 0 || points.GetCurCrd(&at) != 0) {
      return kRefused;
    }
    *x = at.north;
    *y = at.east;
    return 0;
  });
}

int Tavix_DelEntPnt(int key) {
  return OnInstance([=](Instance& instance) { return instance.RemovePoint(key); });
}

// ---- Memos

int Tavix_EntPntMem(int key, CString memo) {
  return OnInstance([&](Instance& instance) { return instance.Memos().Enter(key, memo); });
}

int Tavix_GetPntMem(int key, CString* memo) {
  if (!tavix::CanWrite(memo)) return kRefused;
  memo->Empty();
  // Why there is none is not said.
  OnInstance([=](Instance& instance) { return instance.Memos().Read(key, memo); });
  return 0;
}

// ---- 3-D points

int Tavix_EntPnt3(int key, int number, CString name, double x, double y, double z) {
  return OnInstance([&](Instance& instance) {
    return instance.EnterPoint3({key, number, ToNameView(name), {x, y}, z, 0});
  });
}

int Tavix_ChgPnt3Hid(int key, short legend) {
  return OnInstance([=](Instance& instance) {
    tavix::CPnt3List& points = instance.Points3();
    return points.Find(key) == 0 ? points.SetCurHan(legend) : kRefused;
  });
}

int Tavix_ChgPnt3NoNam(int key, int number, CString name) {
  return OnInstance([&](Instance& instance) {
    tavix::CPnt3List& points = instance.Points3();
    return points.Find(key) == 0 ? points.SetCurNoNam(number, ToNameView(name)) : kRefused;
  });
}

int Tavix_GetPnt3NoNam(int key, int* number, CString* name) {
  return OnInstance([=](Instance& instance) {
    tavix::CPnt3List& points = instance.Points3();
    tavix::Point3 point;
    if (!tavix::CanWrite(number, name) || points.Find(key) != 0 || points.GetCur(&point) != 0) {
      return kRefused;
    }
    *number = point.number;
    *name = ToHostString(point.name);
    return 0;
  });
}

int Tavix_GetPnt3Crd(int key, double* x, double* y, double* z) {
  return OnInstance([=](Instance& instance) {
    tavix::CPnt3List& points = instance.Points3();
    tavix::GroundPoint at;
    if (!tavix::CanWrite(x, y, z) || points.Find(key) != 0 || points.GetCurCrd(&at, z) != 0) {
      return kRefused;
    }
    *x = at.north;
    *y = at.east;
    return 0;
  });
}

int Tavix_DelEntPnt3(int key) {
  return OnInstance([=](Instance& instance) { return instance.Points3().Remove(key); });
}
