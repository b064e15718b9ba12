// The hands of a user on the plot window of the current instance.
#pragma once

#include <windows.h>

#include "window/buttons/button_table.h"

namespace tavix::test {

// The stylus, in client pixels. Its messages are posted, and dispatched with all they lead to.
void PutDown(POINT at);
void MoveTo(POINT at);
void Lift(POINT at);
void Tap(POINT at);
void Drag(POINT from, POINT to);

// A button of the column, whether it shows or not.
[[nodiscard]] HWND ButtonWindow(unsigned button);

// The command that a button sends when it is pressed, with all it leads to.
void Press(unsigned button);

// A key pressed while `focus` has the keyboard, with all it leads to.
void PressKey(int key, HWND focus);

}  // namespace tavix::test
