#include "platform/framework/window/resource_chain.h"

#include "platform/framework/window/module_state.h"

namespace afx {

HINSTANCE FrameworkModule() {
  static const HINSTANCE module = [] {
    HMODULE found = nullptr;
    ::GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCWSTR>(&FrameworkModule), &found);
    return found;
  }();
  return module;
}

}  // namespace afx

HINSTANCE AfxGetInstanceHandle() {
  const HINSTANCE given = afx::ProcessState().instance;
  return given ? given : ::GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle() {
  const HINSTANCE given = afx::ProcessState().resources;
  return given ? given : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE resources) { afx::ProcessState().resources = resources; }

HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type) {
  const HINSTANCE found = afx::FindInModules(
      [&](HINSTANCE module) { return ::FindResourceW(module, name, type) != nullptr; });
  return found ? found : AfxGetResourceHandle();
}
