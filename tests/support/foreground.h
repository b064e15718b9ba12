// Which window the user works with.
#pragma once

#include <windows.h>

namespace tavix::test {

// Puts a window in front when none is, as a user does by a click. Wine can leave no window in front
// when a dialog closes soon after it opened: the display's word that the focus went to the dialog
// arrives when the dialog is gone.
inline void BringToFrontWhenNoneIs(HWND window) {
  const HWND front = ::GetForegroundWindow();
  if (!front || front == ::GetDesktopWindow()) ::SetForegroundWindow(window);
}

}  // namespace tavix::test
