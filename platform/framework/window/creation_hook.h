// Binds a CWnd to the window that is being made before the window gets its first message.
#pragma once

#include "framework/wnd.h"

namespace afx {

// While it lives, the first window this thread makes becomes `object`'s.
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
