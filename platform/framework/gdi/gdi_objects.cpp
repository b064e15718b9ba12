#include "framework/gdi_objects.h"

#include <algorithm>
#include <array>

#include "framework/dc.h"
#include "framework/exception.h"
#include "framework/extension_module.h"
#include "platform/framework/gdi/handle_map.h"

namespace {

bool IsLiveGdiHandle(HGDIOBJ handle) { return ::GetObjectType(handle) != 0; }

// Never destroyed: global pens and brushes still use it at the end of the process.
afx::PermanentMap<CGdiObject, HGDIOBJ>& PermanentGdiObjects() {
  static auto& map = *new afx::PermanentMap<CGdiObject, HGDIOBJ>;
  return map;
}

// The object of class T for the handle. An owner of another class (a CGdiObject that attached a
// pen) is not used in place of a T.
template <class T>
T* GdiObjectFromHandle(HGDIOBJ handle) {
  if (!handle) return nullptr;
  if (T* permanent = dynamic_cast<T*>(PermanentGdiObjects().Find(handle))) return permanent;
  static auto& temporary =
      *new afx::TemporaryMap<T, HGDIOBJ, &CGdiObject::m_hObject, &IsLiveGdiHandle>;
  return temporary.Get(handle);
}

// The bitmap initially selected in memory contexts. GDI also returns it for a bitmap without size.
HGDIOBJ StockBitmap() {
  const HDC memory = ::CreateCompatibleDC(nullptr);
  const HGDIOBJ bitmap = ::GetCurrentObject(memory, OBJ_BITMAP);
  ::DeleteDC(memory);
  return bitmap;
}

// These belong to the system and are shared by all.
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

// ---- CGdiObject

CGdiObject::~CGdiObject() {
  // A temporary object, or one whose handle was attached to another object since, owns nothing.
  if (m_hObject && PermanentGdiObjects().Find(m_hObject) == this) DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) {
  return GdiObjectFromHandle<CGdiObject>(handle);
}

BOOL CGdiObject::Attach(HGDIOBJ handle) {
  // Many objects may hold the same stock object. FromHandle must not return one of them: it may be
  // gone when another selects the stock object back.
  if (handle && !IsStockObject(handle)) PermanentGdiObjects().Set(handle, this);
  return Borrow(handle);
}

BOOL CGdiObject::Own(HGDIOBJ made) {
  return afx::AttachOrGiveBack(*this, made, [=] { ::DeleteObject(made); });
}

BOOL CGdiObject::Borrow(HGDIOBJ handle) {
  if (!handle) return FALSE;
  m_hObject = handle;
  return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
  const HGDIOBJ handle = m_hObject;
  if (handle) PermanentGdiObjects().Remove(handle, this);
  m_hObject = nullptr;
  return handle;
}

BOOL CGdiObject::DeleteObject() {
  const HGDIOBJ handle = Detach();
  return handle && (IsStockObject(handle) || ::DeleteObject(handle));
}

// ---- CPen

CPen::CPen(int style, int width, COLORREF colour) {
  if (!CreatePen(style, width, colour)) AfxThrowResourceException();
}

CPen* CPen::FromHandle(HPEN handle) { return GdiObjectFromHandle<CPen>(handle); }

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

CBrush* CBrush::FromHandle(HBRUSH handle) { return GdiObjectFromHandle<CBrush>(handle); }

BOOL CBrush::CreatePatternBrush(CBitmap* bitmap) { return Own(::CreatePatternBrush(*bitmap)); }

// ---- CFont

CFont* CFont::FromHandle(HFONT handle) { return GdiObjectFromHandle<CFont>(handle); }

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
  // In whole pixels; negative, because it is the height of the characters.
  POINT height = {
      0, ::MulDiv(device.GetDeviceCaps(LOGPIXELSY), font->lfHeight, kTenthsOfPointsInAnInch)};
  POINT origin = {0, 0};
  device.DPtoLP(&height);
  device.DPtoLP(&origin);
  inPixels.lfHeight = -::abs(height.y - origin.y);
  return CreateFontIndirectW(&inPixels);
}

// ---- CBitmap

CBitmap* CBitmap::FromHandle(HBITMAP handle) { return GdiObjectFromHandle<CBitmap>(handle); }

BOOL CBitmap::LoadBitmapW(LPCWSTR name) {
  return Own(::LoadBitmapW(AfxFindResourceHandle(name, RT_BITMAP), name));
}

BOOL CBitmap::LoadOEMBitmap(UINT id) { return Own(::LoadBitmapW(nullptr, MAKEINTRESOURCEW(id))); }

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
  return Own(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

// ---- CRgn

CRgn* CRgn::FromHandle(HRGN handle) { return GdiObjectFromHandle<CRgn>(handle); }
