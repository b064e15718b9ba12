#include "framework/dc.h"

#include "framework/exception.h"
#include "framework/wnd.h"
#include "platform/framework/gdi/handle_map.h"

namespace {

bool IsLiveContext(HDC handle) { return ::GetObjectType(handle) != 0; }

// Never destroyed: global contexts still use it at the end of the process.
afx::PermanentMap<CDC, HDC>& PermanentContexts() {
  static auto& map = *new afx::PermanentMap<CDC, HDC>;
  return map;
}

afx::TemporaryMap<CDC, HDC, &CDC::m_hDC, &IsLiveContext>& TemporaryContexts() {
  static auto& map = *new afx::TemporaryMap<CDC, HDC, &CDC::m_hDC, &IsLiveContext>;
  return map;
}

}  // namespace

CDC::~CDC() {
  if (m_hDC && PermanentContexts().Find(m_hDC) == this) DeleteDC();
}

CDC* CDC::FromHandle(HDC handle) {
  if (!handle) return nullptr;
  if (CDC* permanent = PermanentContexts().Find(handle)) return permanent;
  CDC* temporary = TemporaryContexts().Get(handle);
  temporary->m_hAttribDC = handle;
  return temporary;
}

BOOL CDC::Attach(HDC handle) {
  if (!handle) return FALSE;
  PermanentContexts().Set(handle, this);
  m_hDC = handle;
  SetAttribDC(handle);
  return TRUE;
}

BOOL CDC::Own(HDC made) {
  return afx::AttachOrGiveBack(*this, made, [=] { ::DeleteDC(made); });
}

HDC CDC::Detach() {
  const HDC handle = m_hDC;
  if (handle) PermanentContexts().Remove(handle, this);
  m_hDC = nullptr;
  ReleaseAttribDC();
  return handle;
}

void CDC::SetOutputDC(HDC handle) {
  ReleaseOutputDC();
  m_hDC = handle;
  if (handle) PermanentContexts().Set(handle, this);
}

void CDC::ReleaseOutputDC() {
  if (m_hDC) PermanentContexts().Remove(m_hDC, this);
  m_hDC = nullptr;
}

BOOL CDC::DeleteDC() {
  const HDC handle = Detach();
  return handle && ::DeleteDC(handle);
}

// ---- Objects

CGdiObject* CDC::SelectObject(CGdiObject* object) {
  return CGdiObject::FromHandle(::SelectObject(m_hDC, object ? object->m_hObject : nullptr));
}

CPen* CDC::SelectObject(CPen* pen) {
  return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, pen ? pen->m_hObject : nullptr)));
}

CBrush* CDC::SelectObject(CBrush* brush) {
  return CBrush::FromHandle(
      static_cast<HBRUSH>(::SelectObject(m_hDC, brush ? brush->m_hObject : nullptr)));
}

CFont* CDC::SelectObject(CFont* font) {
  return CFont::FromHandle(
      static_cast<HFONT>(::SelectObject(m_hDC, font ? font->m_hObject : nullptr)));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
  return CBitmap::FromHandle(
      static_cast<HBITMAP>(::SelectObject(m_hDC, bitmap ? bitmap->m_hObject : nullptr)));
}

int CDC::SelectObject(CRgn* region) { return SelectClipRgn(region); }

CGdiObject* CDC::SelectStockObject(int index) {
  return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(index)));
}

CPen* CDC::GetCurrentPen() const {
  return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const {
  return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const {
  return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const {
  return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

// ---- State

int CDC::SaveDC() { return ::SaveDC(m_hDC); }

BOOL CDC::RestoreDC(int savedDC) { return ::RestoreDC(m_hDC, savedDC); }

CPoint CDC::SetViewportOrg(int x, int y) {
  CPoint before;
  ::SetViewportOrgEx(m_hDC, x, y, &before);
  return before;
}

CPoint CDC::SetWindowOrg(int x, int y) {
  CPoint before;
  ::SetWindowOrgEx(m_hDC, x, y, &before);
  return before;
}

CPoint CDC::SetBrushOrg(int x, int y) {
  CPoint before;
  ::SetBrushOrgEx(m_hDC, x, y, &before);
  return before;
}

// ---- Drawing

CPoint CDC::MoveTo(int x, int y) {
  CPoint before;
  ::MoveToEx(m_hDC, x, y, &before);
  return before;
}

CPoint CDC::GetCurrentPosition() const {
  CPoint position;
  ::GetCurrentPositionEx(m_hDC, &position);
  return position;
}

void CDC::FillSolidRect(const RECT* rect, COLORREF colour) {
  ::SetBkColor(m_hDC, colour);
  ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int width, int height, COLORREF colour) {
  const RECT rect = {x, y, x + width, y + height};
  FillSolidRect(&rect, colour);
}

void CDC::Draw3dRect(const RECT* rect, COLORREF topLeft, COLORREF bottomRight) {
  const int width = rect->right - rect->left;
  const int height = rect->bottom - rect->top;
  FillSolidRect(rect->left, rect->top, width - 1, 1, topLeft);
  FillSolidRect(rect->left, rect->top, 1, height - 1, topLeft);
  FillSolidRect(rect->right, rect->top, -1, height, bottomRight);
  FillSolidRect(rect->left, rect->bottom, width, -1, bottomRight);
}

CSize CDC::GetTextExtent(LPCWSTR text, int count) const {
  CSize size;
  ::GetTextExtentPoint32W(m_hAttribDC, text, count, &size);
  return size;
}

// ---- Device contexts of windows: released, and detached so that ~CDC does not delete them

namespace {

template <class Release>
void AttachOrRelease(CDC& dc, HDC handle, Release release) {
  if (!handle) AfxThrowResourceException();
  afx::AttachOrGiveBack(dc, handle, release);
}

}  // namespace

CClientDC::CClientDC(CWnd* window) : m_hWnd(window ? window->m_hWnd : nullptr) {
  const HDC handle = ::GetDC(m_hWnd);
  AttachOrRelease(*this, handle, [&] { ::ReleaseDC(m_hWnd, handle); });
}

CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CWindowDC::CWindowDC(CWnd* window) : m_hWnd(window ? window->m_hWnd : nullptr) {
  const HDC handle = ::GetWindowDC(m_hWnd);
  AttachOrRelease(*this, handle, [&] { ::ReleaseDC(m_hWnd, handle); });
}

CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }

CPaintDC::CPaintDC(CWnd* window) : m_hWnd(window->m_hWnd) {
  AttachOrRelease(*this, ::BeginPaint(m_hWnd, &m_ps), [&] { ::EndPaint(m_hWnd, &m_ps); });
}

CPaintDC::~CPaintDC() {
  Detach();
  ::EndPaint(m_hWnd, &m_ps);
}
