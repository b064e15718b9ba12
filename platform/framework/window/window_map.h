// The process's map of windows.
#pragma once

#include "framework/wnd.h"

namespace afx {

CWnd* FindPermanentWindow(HWND window);
// Makes `object` the one of this window; an object that held the handle before (of a window that
// died unseen) becomes empty.
void SetPermanentWindow(HWND window, CWnd* object);
void RemovePermanentWindow(HWND window, const CWnd* object);
CWnd* TemporaryWindow(HWND window);

inline bool IsLiveWindow(HWND window) { return ::IsWindow(window) != FALSE; }

}  // namespace afx
