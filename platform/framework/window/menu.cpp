#include "framework/menu.h"

#include "framework/extension_module.h"
#include "framework/wnd.h"
#include "platform/framework/gdi/handle_map.h"

namespace {

bool IsLiveMenu(HMENU handle) { return ::IsMenu(handle) != FALSE; }

afx::PermanentMap<CMenu, HMENU>& PermanentMenus() {
  static auto& map = *new afx::PermanentMap<CMenu, HMENU>;
  return map;
}

}  // namespace

CMenu::~CMenu() {
  if (m_hMenu && PermanentMenus().Find(m_hMenu) == this) DestroyMenu();
}

CMenu* CMenu::FromHandle(HMENU handle) {
  if (!handle) return nullptr;
  if (CMenu* permanent = PermanentMenus().Find(handle)) return permanent;
  static auto& temporary = *new afx::TemporaryMap<CMenu, HMENU, &CMenu::m_hMenu, &IsLiveMenu>;
  return temporary.Get(handle);
}

BOOL CMenu::Attach(HMENU handle) {
  if (!handle) return FALSE;
  m_hMenu = handle;
  PermanentMenus().Set(handle, this);
  return TRUE;
}

HMENU CMenu::Detach() {
  const HMENU handle = m_hMenu;
  if (handle) PermanentMenus().Remove(handle, this);
  m_hMenu = nullptr;
  return handle;
}

BOOL CMenu::LoadMenuW(LPCWSTR name) {
  return Attach(::LoadMenuW(AfxFindResourceHandle(name, RT_MENU), name));
}

BOOL CMenu::DestroyMenu() {
  const HMENU handle = Detach();
  return handle && ::DestroyMenu(handle);
}

int CMenu::GetMenuStringW(UINT item, CString& text, UINT flags) const {
  const int length = ::GetMenuStringW(m_hMenu, item, nullptr, 0, flags);
  const int copied =
      ::GetMenuStringW(m_hMenu, item, text.GetBufferSetLength(length), length + 1, flags);
  text.ReleaseBuffer();
  return copied;
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, const RECT* rect) {
  return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, owner ? owner->m_hWnd : nullptr, rect);
}
