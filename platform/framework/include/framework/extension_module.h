// Extension modules: DLLs whose resources and code serve the application as if they were its own.
//
// In its DllMain such a DLL keeps a zeroed static AFX_EXTENSION_MODULE, calls
// AfxInitExtensionModule and makes `new CDynLinkLibrary(record)` on attach, and calls
// AfxTermExtensionModule on detach.
#pragma once

#include "framework/object.h"
#include "framework/platform.h"

struct AFX_EXTENSION_MODULE {
  BOOL bInitialized = FALSE;
  HMODULE hModule = nullptr;
  HMODULE hResource = nullptr;  // where its resources are; the module itself at first
};

// Fills in the record; TRUE also when it is filled already. FALSE for a null module.
AFX_FRAMEWORK BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& record, HMODULE module);
// Takes the module's entries out of the resource chain and deletes them. With `all`, every entry of
// the chain goes.
AFX_FRAMEWORK void AfxTermExtensionModule(AFX_EXTENSION_MODULE& record, BOOL all = FALSE);

// One entry of the resource chain. Made with new, it stands at the chain's head; deleting it takes
// it out. AfxTermExtensionModule deletes those that are left.
class AFX_FRAMEWORK CDynLinkLibrary : public CObject {
 public:
  HMODULE m_hModule;
  HMODULE m_hResource;

  explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& record, BOOL system = FALSE);
  ~CDynLinkLibrary() override;

  // The entry's memory is the framework's, whichever module makes or deletes it.
  static void* operator new(std::size_t size);
  static void operator delete(void* memory);
};

// The module to load a resource from: the application's (AfxGetResourceHandle) when it has the
// resource, else the first of the chain that has, else the framework when it has, else the
// application's after all. `name` and `type` may be numbers (MAKEINTRESOURCE).
AFX_FRAMEWORK HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);

// Where the application's resources are: the executable, unless AfxSetResourceHandle chose another.
AFX_FRAMEWORK HINSTANCE AfxGetResourceHandle();
AFX_FRAMEWORK void AfxSetResourceHandle(HINSTANCE resources);
// The application's executable, or what AfxWinInit was given.
AFX_FRAMEWORK HINSTANCE AfxGetInstanceHandle();
