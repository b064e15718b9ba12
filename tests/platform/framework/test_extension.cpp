// An extension module: puts its resources into the chain while it is loaded.

#include <afxdllx.h>

namespace {
AFX_EXTENSION_MODULE extension = {};
}

extern "C" __declspec(dllexport) int TestExtensionLoads();
int TestExtensionLoads() { return extension.bInitialized; }

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    if (!AfxInitExtensionModule(extension, instance)) return FALSE;
    new CDynLinkLibrary(extension);
  } else if (reason == DLL_PROCESS_DETACH) {
    AfxTermExtensionModule(extension);
  }
  return TRUE;
}
