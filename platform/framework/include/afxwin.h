// The framework's windows: CWnd and its messages, drawing, controls, dialogs, the application.
// Include it before any other header that needs <windows.h>.
#pragma once

#include "afx.h"

#include "framework/command_handlers.h"
#include "framework/controls.h"
#include "framework/data_exchange.h"
#include "framework/dc.h"
#include "framework/dialog.h"
#include "framework/extension_module.h"
#include "framework/frame_wnd.h"
#include "framework/gdi_objects.h"
#include "framework/menu.h"
#include "framework/win_app.h"
#include "framework/window_handlers.h"
#include "framework/wnd.h"
