// Extension modules: DLLs whose resources and classes are used like the application's own.
//
// Such a DLL has a zeroed static AFX_EXTENSION_MODULE. Its DllMain calls AfxInitExtensionModule and
// creates a `new CDynLinkLibrary(record)` on attach, and calls AfxTermExtensionModule on detach.
#pragma once

#include "object.h"
#include "platform.h"

struct AFX_EXTENSION_MODULE {
  BOOL bInitialized = FALSE;
  HMODULE hModule = nullptr;
  HMODULE hResource = nullptr;  // the module with its resources; initially the module itself
};

// Fills in the record; TRUE also when it is filled already. FALSE for a null module.
AFX_FRAMEWORK BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& record, HMODULE module);
// Removes the module's entries from the resource chain and deletes them; with `all`, every entry of
// the chain.
AFX_FRAMEWORK void AfxTermExtensionModule(AFX_EXTENSION_MODULE& record, BOOL all = FALSE);

// An entry of the resource chain, created with new. It becomes the head of the chain and leaves the
// chain when it is deleted. AfxTermExtensionModule deletes the remaining entries.
class AFX_FRAMEWORK CDynLinkLibrary : public CObject {
 public:
  HMODULE m_hModule;
  HMODULE m_hResource;

  explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& record, BOOL system = FALSE);
  ~CDynLinkLibrary() override;

  // The memory is the framework's, whichever module creates or deletes the entry.
  static void* operator new(std::size_t size);
  static void operator delete(void* memory);
};

// The module to load a resource from: the first of the application's module (AfxGetResourceHandle),
// the modules of the chain and the framework that has the resource; without one, the application's
// module. `name` and `type` may be numbers (MAKEINTRESOURCE).
AFX_FRAMEWORK HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);

// The module with the application's resources: the executable, unless AfxSetResourceHandle set
// another.
AFX_FRAMEWORK HINSTANCE AfxGetResourceHandle();
AFX_FRAMEWORK void AfxSetResourceHandle(HINSTANCE resources);
// The application's executable, or the instance passed to AfxWinInit.
AFX_FRAMEWORK HINSTANCE AfxGetInstanceHandle();
