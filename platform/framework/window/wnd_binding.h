// Binds a CWnd and its window to each other, from the first message to the last.
#pragma once

#include "framework/wnd.h"

class CWindowBinding {
 public:
  // Sets the handle, calls PreSubclassWindow and puts AfxWndProc before the window's own procedure.
  static void Subclass(CWnd& object, HWND window);
  // Undoes Subclass or Attach. Returns the handle.
  static HWND Release(CWnd& object);
  // To be called after the window's last message: releases it and calls PostNcDestroy, which may
  // delete the object.
  static void WindowIsGone(CWnd& object);
  static LRESULT CallWindowProcedure(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam) {
    return object.WindowProc(message, wParam, lParam);
  }
};

namespace afx {

// The process's map of windows.
CWnd* FindPermanentWindow(HWND window);
// Makes `object` the object of this window. An object that still held the handle (of an attached
// window that was destroyed) becomes empty.
void SetPermanentWindow(HWND window, CWnd* object);
void RemovePermanentWindow(HWND window, const CWnd* object);
CWnd* TemporaryWindow(HWND window);

inline bool IsLiveWindow(HWND window) { return ::IsWindow(window) != FALSE; }

// Binds a CWnd to its window before the window gets its first message: the first window that this
// thread creates during the lifetime of the hook is bound to `object`.
class CreationHook {
 public:
  explicit CreationHook(CWnd& object);
  ~CreationHook();
  CreationHook(const CreationHook&) = delete;
  CreationHook& operator=(const CreationHook&) = delete;

  // False until a window was created.
  bool IsBound() const { return object_ == nullptr; }

 private:
  static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);

  CWnd* object_;  // null once it has its window
  CreationHook* enclosing_;
  HHOOK hook_;
};

}  // namespace afx
