// The drawing objects: CGdiObject and its classes CPen, CBrush, CFont, CBitmap, CRgn.
#pragma once

#include "geometry.h"
#include "object.h"
#include "platform.h"

class CBitmap;
class CDC;

// The owner of one GDI object.
//
// An object that was created or attached is deleted with its CGdiObject. Select the old object back
// into the device context first: GDI does not delete a selected object, which then remains until
// the process ends.
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

  // Takes ownership of the handle; the object must be empty. FALSE for a null handle. A stock
  // object, or the stock bitmap that GDI returns for a bitmap without size, is held but not owned.
  BOOL Attach(HGDIOBJ handle);
  // Gives up the handle, which the caller then owns.
  HGDIOBJ Detach();
  // Deletes the GDI object. FALSE when there is none or GDI refuses.
  BOOL DeleteObject();

  // Writes up to `count` bytes that describe the object (a LOGPEN, BITMAP, ...) and returns their
  // number.
  int GetObjectW(int count, void* object) const { return ::GetObjectW(m_hObject, count, object); }
  int GetObjectA(int count, void* object) const { return GetObjectW(count, object); }
  // OBJ_PEN, OBJ_BRUSH, ...; 0 for a dead handle.
  UINT GetObjectType() const { return ::GetObjectType(m_hObject); }

  // A stock object such as BLACK_PEN, WHITE_BRUSH, SYSTEM_FONT. Deleting it is harmless.
  BOOL CreateStockObject(int index) { return Attach(::GetStockObject(index)); }
  BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

 protected:
  // Attaches an object that was just made, which is deleted when there is no memory for that.
  BOOL Own(HGDIOBJ made);
  // Holds a handle without owning it. FALSE for a null handle.
  BOOL Borrow(HGDIOBJ handle);
};

// The Create calls of the classes below need an empty object and return FALSE when GDI refuses.
// Constructors that create throw a CResourceException then.

class AFX_FRAMEWORK CPen : public CGdiObject {
 public:
  CPen() = default;
  CPen(int style, int width, COLORREF colour);

  static CPen* FromHandle(HPEN handle);
  operator HPEN() const { return static_cast<HPEN>(m_hObject); }

  // width in logical units; 0 is one pixel in every mapping mode.
  BOOL CreatePen(int style, int width, COLORREF colour) {
    return Own(::CreatePen(style, width, colour));
  }
  BOOL CreatePenIndirect(LOGPEN* pen) { return Own(::CreatePenIndirect(pen)); }
  int GetLogPen(LOGPEN* pen) const { return GetObjectW(sizeof(*pen), pen); }
};

class AFX_FRAMEWORK CBrush : public CGdiObject {
 public:
  CBrush() = default;
  explicit CBrush(COLORREF colour);
  CBrush(int hatch, COLORREF colour);
  explicit CBrush(CBitmap* bitmap);

  static CBrush* FromHandle(HBRUSH handle);
  operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }

  BOOL CreateSolidBrush(COLORREF colour) { return Own(::CreateSolidBrush(colour)); }
  BOOL CreateHatchBrush(int hatch, COLORREF colour) {
    return Own(::CreateHatchBrush(hatch, colour));
  }
  BOOL CreateBrushIndirect(const LOGBRUSH* brush) { return Own(::CreateBrushIndirect(brush)); }
  // The bitmap must outlive the brush.
  BOOL CreatePatternBrush(CBitmap* bitmap);
  BOOL CreateSysColorBrush(int index) { return Borrow(::GetSysColorBrush(index)); }
  int GetLogBrush(LOGBRUSH* brush) const { return GetObjectW(sizeof(*brush), brush); }
};

class AFX_FRAMEWORK CFont : public CGdiObject {
 public:
  CFont() = default;

  static CFont* FromHandle(HFONT handle);
  operator HFONT() const { return static_cast<HFONT>(m_hObject); }

  BOOL CreateFontIndirectW(const LOGFONTW* font) { return Own(::CreateFontIndirectW(font)); }
  BOOL CreateFontIndirectA(const LOGFONTW* font) { return CreateFontIndirectW(font); }
  // height > 0: of the cell, < 0: of the characters; logical units. The rest as LOGFONT.
  BOOL CreateFontW(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                   BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision,
                   BYTE clipPrecision, BYTE quality, BYTE pitchAndFamily, LPCWSTR faceName) {
    return Own(::CreateFontW(height, width, escapement, orientation, weight, italic, underline,
                             strikeOut, charSet, outPrecision, clipPrecision, quality,
                             pitchAndFamily, faceName));
  }
  BOOL CreateFontA(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                   BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision,
                   BYTE clipPrecision, BYTE quality, BYTE pitchAndFamily, LPCWSTR faceName) {
    return CreateFontW(height, width, escapement, orientation, weight, italic, underline, strikeOut,
                       charSet, outPrecision, clipPrecision, quality, pitchAndFamily, faceName);
  }
  // tenthsOfPoints: 120 is twelve points on dc, or on the screen when dc is null.
  BOOL CreatePointFont(int tenthsOfPoints, LPCWSTR faceName, CDC* dc = nullptr);
  BOOL CreatePointFontIndirect(const LOGFONTW* font, CDC* dc = nullptr);
  int GetLogFont(LOGFONTW* font) const { return GetObjectW(sizeof(*font), font); }
};

class AFX_FRAMEWORK CBitmap : public CGdiObject {
 public:
  CBitmap() = default;

  static CBitmap* FromHandle(HBITMAP handle);
  operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }

  // From the resources, see AfxFindResourceHandle.
  BOOL LoadBitmapW(LPCWSTR name);
  BOOL LoadBitmapW(UINT id) { return LoadBitmapW(MAKEINTRESOURCEW(id)); }
  BOOL LoadBitmapA(LPCWSTR name) { return LoadBitmapW(name); }
  BOOL LoadBitmapA(UINT id) { return LoadBitmapW(id); }
  BOOL LoadOEMBitmap(UINT id);

  BOOL CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits) {
    return Own(::CreateBitmap(width, height, planes, bitCount, bits));
  }
  BOOL CreateBitmapIndirect(const BITMAP* bitmap) { return Own(::CreateBitmapIndirect(bitmap)); }
  BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);

  int GetBitmap(BITMAP* bitmap) const { return GetObjectW(sizeof(*bitmap), bitmap); }
  DWORD GetBitmapBits(DWORD count, void* bits) const {
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(count), bits));
  }
  DWORD SetBitmapBits(DWORD count, const void* bits) {
    return static_cast<DWORD>(::SetBitmapBits(*this, count, bits));
  }
};

class AFX_FRAMEWORK CRgn : public CGdiObject {
 public:
  CRgn() = default;

  static CRgn* FromHandle(HRGN handle);
  operator HRGN() const { return static_cast<HRGN>(m_hObject); }

  BOOL CreateRectRgn(int left, int top, int right, int bottom) {
    return Own(::CreateRectRgn(left, top, right, bottom));
  }
  BOOL CreateRectRgnIndirect(const RECT* rect) { return Own(::CreateRectRgnIndirect(rect)); }
  BOOL CreateEllipticRgn(int left, int top, int right, int bottom) {
    return Own(::CreateEllipticRgn(left, top, right, bottom));
  }
  BOOL CreatePolygonRgn(const POINT* points, int count, int fillMode) {
    return Own(::CreatePolygonRgn(points, count, fillMode));
  }
  int CombineRgn(const CRgn* first, const CRgn* second, int mode) {
    return ::CombineRgn(*this, *first, second ? static_cast<HRGN>(*second) : nullptr, mode);
  }
  int GetRgnBox(RECT* box) const { return ::GetRgnBox(*this, box); }
  int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
  BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
  BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
  BOOL RectInRegion(const RECT* rect) const { return ::RectInRegion(*this, rect); }
};
