#include "frame/library_entry.h"

#include <afxwin.h>

namespace tavix {
namespace {

AFX_EXTENSION_MODULE g_module{};

}  // namespace

void ChainResources() {
  // The framework drops the object when the module is terminated.
  static CDynLinkLibrary* const library = new CDynLinkLibrary(g_module);
  static_cast<void>(library);
}

}  // namespace tavix

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) return AfxInitExtensionModule(tavix::g_module, instance);
  if (reason == DLL_PROCESS_DETACH) AfxTermExtensionModule(tavix::g_module);
  return TRUE;
}
