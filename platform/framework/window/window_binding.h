// How a CWnd comes to see the messages of its window, and how the two part.
#pragma once

#include "framework/wnd.h"

class CWindowBinding {
 public:
  // Takes the handle, tells the object (PreSubclassWindow) and puts AfxWndProc before the window's
  // own procedure.
  static void Subclass(CWnd& object, HWND window);
  // The reverse of Subclass, or of a mere Attach. Returns the handle.
  static HWND Release(CWnd& object);
  // The window has got its last message: releases it and lets the object know, which may delete
  // itself on that.
  static void WindowIsGone(CWnd& object);
  static LRESULT CallWindowProcedure(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam) {
    return object.WindowProc(message, wParam, lParam);
  }
};
