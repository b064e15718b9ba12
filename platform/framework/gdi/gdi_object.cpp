#include "framework/gdi_object.h"

#include <algorithm>
#include <array>

#include "platform/framework/gdi/gdi_map.h"

namespace afx {

// Never destroyed: global pens and brushes still ask for it at the process's end.
PermanentMap<CGdiObject, HGDIOBJ>& PermanentGdiObjects() {
  static auto& map = *new PermanentMap<CGdiObject, HGDIOBJ>;
  return map;
}

}  // namespace afx

namespace {

// The bitmap that memory contexts begin with. It also stands for a bitmap of no size.
HGDIOBJ StockBitmap() {
  const HDC memory = ::CreateCompatibleDC(nullptr);
  const HGDIOBJ bitmap = ::GetCurrentObject(memory, OBJ_BITMAP);
  ::DeleteDC(memory);
  return bitmap;
}

// The system hands these out to everyone, and they are nobody's.
bool IsStockObject(HGDIOBJ handle) {
  static const auto objects = [] {
    std::array<HGDIOBJ, STOCK_LAST + 2> all{};
    for (int index = 0; index <= STOCK_LAST; ++index) {
      all[static_cast<std::size_t>(index)] = ::GetStockObject(index);
    }
    all.back() = StockBitmap();
    return all;
  }();
  return std::find(objects.begin(), objects.end(), handle) != objects.end();
}

}  // namespace

CGdiObject::~CGdiObject() {
  // A temporary object, or one whose handle another object has taken over, owns nothing.
  if (m_hObject && afx::PermanentGdiObjects().Find(m_hObject) == this) DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) {
  return afx::GdiObjectFromHandle<CGdiObject>(handle);
}

BOOL CGdiObject::Attach(HGDIOBJ handle) {
  // What is selected everywhere must not lead to one of the many objects that hold it: that one may
  // be gone when the others select it back.
  if (handle && !IsStockObject(handle)) afx::PermanentGdiObjects().Set(handle, this);
  return Borrow(handle);
}

BOOL CGdiObject::Borrow(HGDIOBJ handle) {
  if (!handle) return FALSE;
  m_hObject = handle;
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
  return handle && (IsStockObject(handle) || ::DeleteObject(handle));
}
