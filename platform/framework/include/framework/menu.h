// CMenu: a menu. A menu that was loaded, created or attached is destroyed with its object, unless
// it was detached, for example because it became the menu of a window.
#pragma once

#include "object.h"
#include "string.h"

class CWnd;

class AFX_FRAMEWORK CMenu : public CObject {
 public:
  HMENU m_hMenu = nullptr;

  CMenu() = default;
  ~CMenu() override;

  // The object that holds the handle, or a temporary one that does not own it and lives as long as
  // the handle; null for a null handle.
  static CMenu* FromHandle(HMENU handle);
  HMENU GetSafeHmenu() const { return m_hMenu; }
  operator HMENU() const { return m_hMenu; }
  BOOL Attach(HMENU handle);
  HMENU Detach();

  BOOL CreateMenu() { return Attach(::CreateMenu()); }
  BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
  // From the resources, see AfxFindResourceHandle.
  BOOL LoadMenuW(LPCWSTR name);
  BOOL LoadMenuW(UINT id) { return LoadMenuW(MAKEINTRESOURCEW(id)); }
  BOOL DestroyMenu();

  // flags: MF_BYCOMMAND (item is an id) or MF_BYPOSITION, with MF_STRING, MF_POPUP, ...
  BOOL AppendMenuW(UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr) {
    return ::AppendMenuW(m_hMenu, flags, id, text);
  }
  BOOL InsertMenuW(UINT item, UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr) {
    return ::InsertMenuW(m_hMenu, item, flags, id, text);
  }
  BOOL ModifyMenuW(UINT item, UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr) {
    return ::ModifyMenuW(m_hMenu, item, flags, id, text);
  }
  BOOL DeleteMenu(UINT item, UINT flags) { return ::DeleteMenu(m_hMenu, item, flags); }
  BOOL RemoveMenu(UINT item, UINT flags) { return ::RemoveMenu(m_hMenu, item, flags); }
  // The previous state, or 0xFFFFFFFF when there is no such item.
  UINT EnableMenuItem(UINT item, UINT flags) {
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, item, flags));
  }
  UINT CheckMenuItem(UINT item, UINT flags) { return ::CheckMenuItem(m_hMenu, item, flags); }
  BOOL CheckMenuRadioItem(UINT first, UINT last, UINT item, UINT flags) {
    return ::CheckMenuRadioItem(m_hMenu, first, last, item, flags);
  }
  UINT GetMenuState(UINT item, UINT flags) const { return ::GetMenuState(m_hMenu, item, flags); }
  UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
  UINT GetMenuItemID(int position) const { return ::GetMenuItemID(m_hMenu, position); }
  int GetMenuStringW(UINT item, LPWSTR text, int maxCount, UINT flags) const {
    return ::GetMenuStringW(m_hMenu, item, text, maxCount, flags);
  }
  int GetMenuStringW(UINT item, CString& text, UINT flags) const;
  CMenu* GetSubMenu(int position) const { return FromHandle(::GetSubMenu(m_hMenu, position)); }

  // x and y are screen coordinates. Returns the chosen id with TPM_RETURNCMD, otherwise non-zero on
  // success.
  BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, const RECT* rect = nullptr);

  // ---- The same for hosts compiled without UNICODE

  BOOL LoadMenuA(LPCWSTR name) { return LoadMenuW(name); }
  BOOL LoadMenuA(UINT id) { return LoadMenuW(id); }
  BOOL AppendMenuA(UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr) {
    return AppendMenuW(flags, id, text);
  }
  BOOL InsertMenuA(UINT item, UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr) {
    return InsertMenuW(item, flags, id, text);
  }
  BOOL ModifyMenuA(UINT item, UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr) {
    return ModifyMenuW(item, flags, id, text);
  }
  int GetMenuStringA(UINT item, LPWSTR text, int maxCount, UINT flags) const {
    return GetMenuStringW(item, text, maxCount, flags);
  }
  int GetMenuStringA(UINT item, CString& text, UINT flags) const {
    return GetMenuStringW(item, text, flags);
  }
};
