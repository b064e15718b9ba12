// What the user is told in a message box.
#pragma once

#include "framework/exception.h"

namespace afx {

// Tells the user what happened, unless he has been told, and ends the exception.
void ReportAndDelete(CException* exception);

}  // namespace afx
