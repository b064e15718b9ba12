// What the framework knows about the process it serves.
#pragma once

#include "framework/platform.h"

class CWinApp;

namespace afx {

struct ModuleState {
  CWinApp* app = nullptr;
  HINSTANCE instance = nullptr;   // null: the executable
  HINSTANCE resources = nullptr;  // null: the instance's
};

ModuleState& ProcessState();

}  // namespace afx
