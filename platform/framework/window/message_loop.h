// The message loop as the framework's own windows need it.
#pragma once

#include "framework/exception.h"

namespace afx {

// For the loop that runs while a modal dialog is open: waits for one message and handles it,
// through the application when there is one. FALSE for WM_QUIT, which is then posted again for the
// loop outside.
BOOL PumpModalMessage();

// Shows the message of an exception that no handler caught, if it has one, and deletes the
// exception.
void ReportAndDelete(CException* exception);

}  // namespace afx
