// Window classes of the framework's.

#include <cwchar>
#include <set>
#include <string>

#include "framework/exception.h"
#include "framework/extension_module.h"
#include "framework/wnd.h"

namespace {

// The names handed out; they stay where they are.
LPCWSTR KeepName(const std::wstring& name) {
  static auto& names = *new std::set<std::wstring>;
  return names.insert(name).first->c_str();
}

}  // namespace

BOOL AfxRegisterClass(WNDCLASSW* windowClass) {
  WNDCLASSW known;
  if (::GetClassInfoW(windowClass->hInstance, windowClass->lpszClassName, &known)) return TRUE;
  return ::RegisterClassW(windowClass) != 0;
}

LPCWSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon) {
  // The name tells the combination, so that the same one finds its class again.
  wchar_t text[96];
  std::swprintf(text, std::size(text), L"Afx:%x:%p:%p:%p", classStyle, static_cast<void*>(cursor),
                static_cast<void*>(background), static_cast<void*>(icon));
  const LPCWSTR name = KeepName(text);
  WNDCLASSW windowClass = {};
  windowClass.style = classStyle;
  windowClass.lpfnWndProc = &AfxWndProc;
  windowClass.hInstance = AfxGetInstanceHandle();
  windowClass.hCursor = cursor;
  windowClass.hbrBackground = background;
  windowClass.hIcon = icon;
  windowClass.lpszClassName = name;
  if (!AfxRegisterClass(&windowClass)) AfxThrowResourceException();
  return name;
}
