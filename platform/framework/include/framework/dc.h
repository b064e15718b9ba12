// CDC: a device context; CClientDC, CWindowDC and CPaintDC: those of a window. Members call the GDI
// functions of the same name, in logical units, and return their results.
//
// Drawing names that <windows.h> defines as macros are declared twice, see framework/platform.h.
#pragma once

#include "gdi_objects.h"
#include "geometry.h"
#include "string.h"

class CWnd;

class AFX_FRAMEWORK CDC : public CObject {
 public:
  HDC m_hDC = nullptr;        // for drawing
  HDC m_hAttribDC = nullptr;  // for queries; usually the same

  CDC() = default;
  ~CDC() override;  // deletes a context that was created or attached

  // The object that owns the handle, or a temporary one that does not own it and lives as long as
  // the handle; null for a null handle.
  static CDC* FromHandle(HDC handle);
  HDC GetSafeHdc() const { return m_hDC; }
  operator HDC() const { return m_hDC; }

  BOOL Attach(HDC handle);
  HDC Detach();
  virtual void SetAttribDC(HDC handle) { m_hAttribDC = handle; }
  virtual void SetOutputDC(HDC handle);
  virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
  virtual void ReleaseOutputDC();

  BOOL CreateDCW(LPCWSTR driver, LPCWSTR device, LPCWSTR output, const void* initData) {
    return Own(::CreateDCW(driver, device, output, static_cast<const DEVMODEW*>(initData)));
  }
  BOOL CreateDCA(LPCWSTR driver, LPCWSTR device, LPCWSTR output, const void* initData) {
    return CreateDCW(driver, device, output, initData);
  }
  // A memory context like `dc`, or like the screen when dc is null.
  BOOL CreateCompatibleDC(CDC* dc) { return Own(::CreateCompatibleDC(dc ? dc->m_hDC : nullptr)); }
  BOOL DeleteDC();

  // ---- Objects: each call selects an object and returns the one selected before (null when GDI
  //      refuses), whose owner does not change. Select it back before the new one is destroyed.

  CGdiObject* SelectObject(CGdiObject* object);
  CPen* SelectObject(CPen* pen);
  CBrush* SelectObject(CBrush* brush);
  virtual CFont* SelectObject(CFont* font);
  CBitmap* SelectObject(CBitmap* bitmap);
  int SelectObject(CRgn* region);  // copies the region; its complexity, see SelectClipRgn
  virtual CGdiObject* SelectStockObject(int index);
  CPen* GetCurrentPen() const;
  CBrush* GetCurrentBrush() const;
  CFont* GetCurrentFont() const;
  CBitmap* GetCurrentBitmap() const;
  HGDIOBJ SelectObject(HGDIOBJ object) { return ::SelectObject(m_hDC, object); }

  // ---- State

  virtual int SaveDC();                 // a number for RestoreDC, 0 on failure
  virtual BOOL RestoreDC(int savedDC);  // -1 is the last one saved
  virtual COLORREF SetBkColor(COLORREF colour) { return ::SetBkColor(m_hDC, colour); }
  COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
  int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
  int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
  virtual COLORREF SetTextColor(COLORREF colour) { return ::SetTextColor(m_hDC, colour); }
  COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
  UINT SetTextAlign(UINT align) { return ::SetTextAlign(m_hDC, align); }
  UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
  int SetROP2(int mode) { return ::SetROP2(m_hDC, mode); }
  int GetROP2() const { return ::GetROP2(m_hAttribDC); }
  int SetPolyFillMode(int mode) { return ::SetPolyFillMode(m_hDC, mode); }
  int SetStretchBltMode(int mode) { return ::SetStretchBltMode(m_hDC, mode); }
  virtual int SetMapMode(int mode) { return ::SetMapMode(m_hDC, mode); }
  int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
  CPoint SetViewportOrg(int x, int y);
  CPoint SetWindowOrg(int x, int y);
  CPoint SetBrushOrg(int x, int y);
  int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hAttribDC, index); }
  void DPtoLP(POINT* points, int count = 1) const { ::DPtoLP(m_hAttribDC, points, count); }
  void LPtoDP(POINT* points, int count = 1) const { ::LPtoDP(m_hAttribDC, points, count); }

  // ---- Clipping

  virtual int GetClipBox(RECT* rect) const { return ::GetClipBox(m_hAttribDC, rect); }
  int SelectClipRgn(CRgn* region) {
    return ::SelectClipRgn(m_hDC, region ? static_cast<HRGN>(*region) : nullptr);
  }
  int IntersectClipRect(int left, int top, int right, int bottom) {
    return ::IntersectClipRect(m_hDC, left, top, right, bottom);
  }
  int IntersectClipRect(const RECT* r) {
    return IntersectClipRect(r->left, r->top, r->right, r->bottom);
  }
  int ExcludeClipRect(int left, int top, int right, int bottom) {
    return ::ExcludeClipRect(m_hDC, left, top, right, bottom);
  }
  int ExcludeClipRect(const RECT* r) {
    return ExcludeClipRect(r->left, r->top, r->right, r->bottom);
  }
  BOOL PtVisible(POINT point) const { return ::PtVisible(m_hDC, point.x, point.y); }
  BOOL RectVisible(const RECT* rect) const { return ::RectVisible(m_hDC, rect); }

  // ---- Lines and shapes

  CPoint MoveTo(int x, int y);  // returns the position before
  CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
  CPoint GetCurrentPosition() const;
  BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
  BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
  BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
  BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
  BOOL Rectangle(int left, int top, int right, int bottom) {
    return ::Rectangle(m_hDC, left, top, right, bottom);
  }
  BOOL Rectangle(const RECT* r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
  BOOL RoundRect(int left, int top, int right, int bottom, int width, int height) {
    return ::RoundRect(m_hDC, left, top, right, bottom, width, height);
  }
  BOOL Ellipse(int left, int top, int right, int bottom) {
    return ::Ellipse(m_hDC, left, top, right, bottom);
  }
  BOOL Ellipse(const RECT* r) { return Ellipse(r->left, r->top, r->right, r->bottom); }
  BOOL Arc(int left, int top, int right, int bottom, int x3, int y3, int x4, int y4) {
    return ::Arc(m_hDC, left, top, right, bottom, x3, y3, x4, y4);
  }
  BOOL Pie(int left, int top, int right, int bottom, int x3, int y3, int x4, int y4) {
    return ::Pie(m_hDC, left, top, right, bottom, x3, y3, x4, y4);
  }
  void FillRect(const RECT* rect, CBrush* brush) { ::FillRect(m_hDC, rect, *brush); }
  void FrameRect(const RECT* rect, CBrush* brush) { ::FrameRect(m_hDC, rect, *brush); }
  void InvertRect(const RECT* rect) { ::InvertRect(m_hDC, rect); }
  BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }
  // Fills without a brush; the colour becomes the background colour.
  void FillSolidRect(const RECT* rect, COLORREF colour);
  void FillSolidRect(int x, int y, int width, int height, COLORREF colour);
  void DrawFocusRect(const RECT* rect) { ::DrawFocusRect(m_hDC, rect); }
  BOOL DrawEdge(RECT* rect, UINT edge, UINT flags) { return ::DrawEdge(m_hDC, rect, edge, flags); }
  void Draw3dRect(const RECT* rect, COLORREF topLeft, COLORREF bottomRight);
  BOOL DrawFrameControl(RECT* rect, UINT type, UINT state) {
    return ::DrawFrameControl(m_hDC, rect, type, state);
  }
  BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }

  // ---- Bitmaps; source contexts may be null where the operation needs none

  BOOL PatBlt(int x, int y, int width, int height, DWORD operation) {
    return ::PatBlt(m_hDC, x, y, width, height, operation);
  }
  BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
              DWORD operation) {
    return ::BitBlt(m_hDC, x, y, width, height, source ? source->m_hDC : nullptr, sourceX, sourceY,
                    operation);
  }
  BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                  int sourceWidth, int sourceHeight, DWORD operation) {
    return ::StretchBlt(m_hDC, x, y, width, height, source ? source->m_hDC : nullptr, sourceX,
                        sourceY, sourceWidth, sourceHeight, operation);
  }
  COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
  COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
  COLORREF SetPixel(int x, int y, COLORREF colour) { return ::SetPixel(m_hDC, x, y, colour); }
  COLORREF SetPixel(POINT point, COLORREF colour) { return SetPixel(point.x, point.y, colour); }

  // ---- Text; a count of -1 is the whole string

  virtual BOOL TextOutW(int x, int y, LPCWSTR text, int count) {
    return ::TextOutW(m_hDC, x, y, text, count);
  }
  BOOL TextOutW(int x, int y, const CString& text) {
    return TextOutW(x, y, text, text.GetLength());
  }
  virtual BOOL ExtTextOutW(int x, int y, UINT options, const RECT* rect, LPCWSTR text, UINT count,
                           INT* distances) {
    return ::ExtTextOutW(m_hDC, x, y, options, rect, text, count, distances);
  }
  BOOL ExtTextOutW(int x, int y, UINT options, const RECT* rect, const CString& text,
                   INT* distances) {
    return ExtTextOutW(x, y, options, rect, text, static_cast<UINT>(text.GetLength()), distances);
  }
  virtual int DrawTextW(LPCWSTR text, int count, RECT* rect, UINT format) {
    return ::DrawTextW(m_hDC, text, count, rect, format);
  }
  int DrawTextW(const CString& text, RECT* rect, UINT format) {
    return DrawTextW(text, text.GetLength(), rect, format);
  }
  CSize GetTextExtent(LPCWSTR text, int count) const;
  CSize GetTextExtent(const CString& text) const { return GetTextExtent(text, text.GetLength()); }
  BOOL GetTextMetricsW(TEXTMETRICW* metrics) const {
    return ::GetTextMetricsW(m_hAttribDC, metrics);
  }

  // ---- The same for hosts compiled without UNICODE

  BOOL TextOutA(int x, int y, LPCWSTR text, int count) { return TextOutW(x, y, text, count); }
  BOOL TextOutA(int x, int y, const CString& text) { return TextOutW(x, y, text); }
  BOOL ExtTextOutA(int x, int y, UINT options, const RECT* rect, LPCWSTR text, UINT count,
                   INT* distances) {
    return ExtTextOutW(x, y, options, rect, text, count, distances);
  }
  BOOL ExtTextOutA(int x, int y, UINT options, const RECT* rect, const CString& text,
                   INT* distances) {
    return ExtTextOutW(x, y, options, rect, text, distances);
  }
  int DrawTextA(LPCWSTR text, int count, RECT* rect, UINT format) {
    return DrawTextW(text, count, rect, format);
  }
  int DrawTextA(const CString& text, RECT* rect, UINT format) {
    return DrawTextW(text, rect, format);
  }
  BOOL GetTextMetricsA(TEXTMETRICW* metrics) const { return GetTextMetricsW(metrics); }

 private:
  // Attaches a context that was just made, which is deleted when there is no memory for that.
  BOOL Own(HDC made);
};

// ---- Device contexts of windows, released on destruction. A null window is the whole screen. The
//      constructors throw a CResourceException when there is no context.

class AFX_FRAMEWORK CClientDC : public CDC {
 public:
  explicit CClientDC(CWnd* window);
  ~CClientDC() override;

 protected:
  HWND m_hWnd;
};

class AFX_FRAMEWORK CWindowDC : public CDC {
 public:
  explicit CWindowDC(CWnd* window);
  ~CWindowDC() override;

 protected:
  HWND m_hWnd;
};

// For WM_PAINT handlers only: BeginPaint and EndPaint.
class AFX_FRAMEWORK CPaintDC : public CDC {
 public:
  PAINTSTRUCT m_ps = {};

  explicit CPaintDC(CWnd* window);
  ~CPaintDC() override;

 protected:
  HWND m_hWnd;
};
