// The same for a host that is linked with -municode, whose start-up code asks for wmain.

#include <afxwin.h>

#include "platform/framework/window/winmain/run_application.h"

extern "C" int wmain();
int wmain() { return afx::RunApplication(); }
