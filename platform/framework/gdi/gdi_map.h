// The process's map of drawing objects.
#pragma once

#include "platform/framework/gdi/handle_map.h"

#include "framework/gdi_object.h"

namespace afx {

inline bool IsLiveGdiHandle(HGDIOBJ handle) { return ::GetObjectType(handle) != 0; }

PermanentMap<CGdiObject, HGDIOBJ>& PermanentGdiObjects();

// The object of class T for the handle. An owner of another class (a CGdiObject that attached a
// pen) does not stand for a T.
template <class T>
T* GdiObjectFromHandle(HGDIOBJ handle) {
  if (!handle) return nullptr;
  if (T* permanent = dynamic_cast<T*>(PermanentGdiObjects().Find(handle))) return permanent;
  static auto& temporary = *new TemporaryMap<T, HGDIOBJ, &CGdiObject::m_hObject, &IsLiveGdiHandle>;
  return temporary.Get(handle);
}

}  // namespace afx
