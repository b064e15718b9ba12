// CGdiObject: the owner of one system drawing object (pen, brush, font, bitmap, region).
//
// An object that was created or attached is deleted with its CGdiObject. Select the old object back
// into the device context first: the system does not delete an object that is still selected, and
// it then lives on until the process ends.
#pragma once

#include "framework/export.h"
#include "framework/object.h"
#include "framework/platform.h"

class AFX_FRAMEWORK CGdiObject : public CObject {
 public:
  HGDIOBJ m_hObject = nullptr;

  CGdiObject() = default;
  ~CGdiObject() override;

  operator HGDIOBJ() const { return m_hObject; }
  HGDIOBJ GetSafeHandle() const { return m_hObject; }

  // The object that owns the handle, or a temporary one that does not own it and lives as long as
  // the handle; null for a null handle.
  static CGdiObject* FromHandle(HGDIOBJ handle);

  // Takes the handle over; the object must be empty. FALSE for a null handle. A stock object, or
  // the stock bitmap that the system gives in place of one of no size, is held but never owned.
  BOOL Attach(HGDIOBJ handle);
  // Gives the handle back; the caller owns it.
  HGDIOBJ Detach();
  // Deletes the system's object. FALSE when empty or when the system refuses.
  BOOL DeleteObject();

  // Writes at most `count` bytes that describe the object (a LOGPEN, BITMAP, ...); the number
  // written.
  int GetObjectW(int count, void* object) const { return ::GetObjectW(m_hObject, count, object); }
  int GetObjectA(int count, void* object) const { return GetObjectW(count, object); }
  // OBJ_PEN, OBJ_BRUSH, ...; 0 for a dead handle.
  UINT GetObjectType() const { return ::GetObjectType(m_hObject); }

  // A stock object such as BLACK_PEN, WHITE_BRUSH, SYSTEM_FONT. Deleting it is harmless.
  BOOL CreateStockObject(int index) { return Attach(::GetStockObject(index)); }
  BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

 protected:
  // Holds a handle of the system's own. FALSE for a null handle.
  BOOL Borrow(HGDIOBJ handle);
};
