// What the framework knows about the process, and the modules that resources are looked for in.
#pragma once

#include "framework/extension_module.h"

class CWinApp;

namespace afx {

struct ModuleState {
  CWinApp* app = nullptr;
  HINSTANCE instance = nullptr;   // null: the executable
  HINSTANCE resources = nullptr;  // null: the instance's
};

ModuleState& ProcessState();

// The module the framework itself is in.
HINSTANCE FrameworkModule();

// The entries' modules, head first; null after the last.
HINSTANCE ChainModule(std::size_t index);

// The first module that `has(module)` is true for, or null. The order: the application's, the chain
// from its head, the framework.
template <class Has>
HINSTANCE FindInModules(Has has) {
  if (const HINSTANCE application = AfxGetResourceHandle(); has(application)) return application;
  for (std::size_t i = 0; const HINSTANCE module = ChainModule(i); ++i) {
    if (has(module)) return module;
  }
  return has(FrameworkModule()) ? FrameworkModule() : nullptr;
}

}  // namespace afx
