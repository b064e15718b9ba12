// The framework's windows: CWnd and its messages, drawing, controls, dialogs, the application.
// Include this before anything else of <windows.h>.
#pragma once

#include <afx.h>

#include "framework/button.h"
#include "framework/combo_box.h"
#include "framework/command_handlers.h"
#include "framework/data_exchange.h"
#include "framework/dc.h"
#include "framework/dialog.h"
#include "framework/edit.h"
#include "framework/extension_module.h"
#include "framework/frame_wnd.h"
#include "framework/gdi_objects.h"
#include "framework/list_box.h"
#include "framework/menu.h"
#include "framework/scroll_bar.h"
#include "framework/static_control.h"
#include "framework/win_app.h"
#include "framework/window_dc.h"
#include "framework/window_handlers.h"
#include "framework/wnd.h"
