#include "framework/gdi_objects.h"

#include "framework/dc.h"
#include "framework/exception.h"
#include "framework/extension_module.h"
#include "framework/window_dc.h"
#include "platform/framework/gdi/gdi_map.h"

// ---- CPen

CPen::CPen(int style, int width, COLORREF colour) {
  if (!CreatePen(style, width, colour)) AfxThrowResourceException();
}

CPen* CPen::FromHandle(HPEN handle) { return afx::GdiObjectFromHandle<CPen>(handle); }

// ---- CBrush

CBrush::CBrush(COLORREF colour) {
  if (!CreateSolidBrush(colour)) AfxThrowResourceException();
}

CBrush::CBrush(int hatch, COLORREF colour) {
  if (!CreateHatchBrush(hatch, colour)) AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* bitmap) {
  if (!CreatePatternBrush(bitmap)) AfxThrowResourceException();
}

CBrush* CBrush::FromHandle(HBRUSH handle) { return afx::GdiObjectFromHandle<CBrush>(handle); }

BOOL CBrush::CreatePatternBrush(CBitmap* bitmap) { return Attach(::CreatePatternBrush(*bitmap)); }

// ---- CFont

CFont* CFont::FromHandle(HFONT handle) { return afx::GdiObjectFromHandle<CFont>(handle); }

BOOL CFont::CreatePointFont(int tenthsOfPoints, LPCWSTR faceName, CDC* dc) {
  LOGFONTW font = {};
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfHeight = tenthsOfPoints;
  ::lstrcpynW(font.lfFaceName, faceName, LF_FACESIZE);
  return CreatePointFontIndirect(&font, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONTW* font, CDC* dc) {
  constexpr int kTenthsOfPointsInAnInch = 720;
  CWindowDC screen(nullptr);
  CDC& device = dc ? *dc : screen;
  LOGFONTW inPixels = *font;
  // Rounded to whole pixels; below zero it is the height of the characters.
  POINT height = {
      0, ::MulDiv(device.GetDeviceCaps(LOGPIXELSY), font->lfHeight, kTenthsOfPointsInAnInch)};
  POINT origin = {0, 0};
  device.DPtoLP(&height);
  device.DPtoLP(&origin);
  inPixels.lfHeight = -::abs(height.y - origin.y);
  return CreateFontIndirectW(&inPixels);
}

// ---- CBitmap

CBitmap* CBitmap::FromHandle(HBITMAP handle) { return afx::GdiObjectFromHandle<CBitmap>(handle); }

BOOL CBitmap::LoadBitmapW(LPCWSTR name) {
  return Attach(::LoadBitmapW(AfxFindResourceHandle(name, RT_BITMAP), name));
}

BOOL CBitmap::LoadOEMBitmap(UINT id) {
  return Attach(::LoadBitmapW(nullptr, MAKEINTRESOURCEW(id)));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
  return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

// ---- CRgn

CRgn* CRgn::FromHandle(HRGN handle) { return afx::GdiObjectFromHandle<CRgn>(handle); }
