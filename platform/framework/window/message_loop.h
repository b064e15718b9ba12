// How messages are fetched and where they go before they are dispatched.
#pragma once

#include "framework/platform.h"

namespace afx {

// Offers the message to its window and then to each parent or owner up to `last` (included; null:
// to the top) that has an object. TRUE when one of them handled it.
BOOL WalkPreTranslateTree(HWND last, MSG* message);

// For the loop that runs while a modal dialog is open: waits for one message and handles it, the
// application's way when there is one. FALSE when it was WM_QUIT, which is then on its way again to
// the loop outside.
BOOL PumpModalMessage();

// Keeps a window from taking input for as long as it lives; a window that took none before stays
// so.
class ScopedDisable {
 public:
  explicit ScopedDisable(HWND window);
  ~ScopedDisable();
  ScopedDisable(const ScopedDisable&) = delete;
  ScopedDisable& operator=(const ScopedDisable&) = delete;

 private:
  HWND window_;  // null when there is nothing to enable again
};

}  // namespace afx
