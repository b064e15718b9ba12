#include "framework/gdi_object.h"

#include "platform/framework/gdi/gdi_map.h"

namespace afx {

// Never destroyed: global pens and brushes still ask for it at the process's end.
PermanentMap<CGdiObject, HGDIOBJ>& PermanentGdiObjects() {
  static auto& map = *new PermanentMap<CGdiObject, HGDIOBJ>;
  return map;
}

}  // namespace afx

CGdiObject::~CGdiObject() {
  // A temporary object, or one whose handle another object has taken over, owns nothing.
  if (m_hObject && afx::PermanentGdiObjects().Find(m_hObject) == this) DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) {
  return afx::GdiObjectFromHandle<CGdiObject>(handle);
}

BOOL CGdiObject::Attach(HGDIOBJ handle) {
  if (!handle) return FALSE;
  m_hObject = handle;
  afx::PermanentGdiObjects().Set(handle, this);
  return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
  const HGDIOBJ handle = m_hObject;
  if (handle) afx::PermanentGdiObjects().Remove(handle, this);
  m_hObject = nullptr;
  return handle;
}

BOOL CGdiObject::DeleteObject() {
  const HGDIOBJ handle = Detach();
  return handle && ::DeleteObject(handle);
}
