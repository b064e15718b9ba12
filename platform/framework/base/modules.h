// The application of the process, and the modules that are searched for resources.
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

// The module of the framework itself.
HINSTANCE FrameworkModule();

// The module of the chain's entry `index`, counted from the head; null after the last one.
HINSTANCE ChainModule(std::size_t index);

// The first module for which `has(module)` is true, or null. The order: the application's module,
// the chain from its head, the framework.
template <class Has>
HINSTANCE FindInModules(Has has) {
  if (const HINSTANCE application = AfxGetResourceHandle(); has(application)) return application;
  for (std::size_t i = 0; const HINSTANCE module = ChainModule(i); ++i) {
    if (has(module)) return module;
  }
  return has(FrameworkModule()) ? FrameworkModule() : nullptr;
}

}  // namespace afx
