// How a CWnd and its window find each other, from the first message to the last.
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

namespace afx {

// The process's map of windows.
CWnd* FindPermanentWindow(HWND window);
// Makes `object` the one of this window; an object that held the handle before (of a window that
// died unseen) becomes empty.
void SetPermanentWindow(HWND window, CWnd* object);
void RemovePermanentWindow(HWND window, const CWnd* object);
CWnd* TemporaryWindow(HWND window);

inline bool IsLiveWindow(HWND window) { return ::IsWindow(window) != FALSE; }

// Binds a CWnd to the window that is being made before the window gets its first message. While it
// lives, the first window this thread makes becomes `object`'s.
class CreationHook {
 public:
  explicit CreationHook(CWnd& object);
  ~CreationHook();
  CreationHook(const CreationHook&) = delete;
  CreationHook& operator=(const CreationHook&) = delete;

  // False as long as no window was made.
  bool IsBound() const { return object_ == nullptr; }

 private:
  static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);

  CWnd* object_;  // null once it has its window
  CreationHook* enclosing_;
  HHOOK hook_;
};

}  // namespace afx
