// Extension modules, and the modules that are searched for resources.

#include "framework/extension_module.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <vector>

#include "framework/string.h"
#include "platform/framework/base/modules.h"

namespace {

// The head is the first element. Never destroyed: modules are removed from it at the end of the
// process.
std::vector<CDynLinkLibrary*>& Chain() {
  static auto& chain = *new std::vector<CDynLinkLibrary*>;
  return chain;
}

}  // namespace

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& record, HMODULE module) {
  if (!module) return FALSE;
  if (record.bInitialized) return TRUE;
  record = {TRUE, module, module};
  return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& record, BOOL all) {
  // A copy, because each entry removes itself from the chain.
  for (CDynLinkLibrary* entry : std::vector(Chain())) {
    if (all || entry->m_hModule == record.hModule) delete entry;
  }
  record = {};
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& record, BOOL)
    : m_hModule(record.hModule), m_hResource(record.hResource) {
  Chain().insert(Chain().begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary() { std::erase(Chain(), this); }

void* CDynLinkLibrary::operator new(std::size_t size) { return ::operator new(size); }

void CDynLinkLibrary::operator delete(void* memory) { ::operator delete(memory); }

namespace afx {

ModuleState& ProcessState() {
  static ModuleState state;
  return state;
}

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

HINSTANCE ChainModule(std::size_t index) {
  return index < Chain().size() ? Chain()[index]->m_hResource : nullptr;
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

// ---- String resources

namespace {

// The string resource `id` of a module, where it lies in the module; empty when there is none.
std::wstring_view FindText(HINSTANCE module, UINT id) {
  LPCWSTR text = nullptr;
  // Asked with a size of 0, the system gives the address of the text, which no NUL closes.
  const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
  return {text, static_cast<std::size_t>(length > 0 ? length : 0)};
}

}  // namespace

BOOL CString::LoadStringW(UINT id) {
  std::wstring_view found;
  // Strings are stored in blocks of sixteen. A module may hold the block of this id without a text
  // for it: the search then goes on to the next module.
  afx::FindInModules([&](HINSTANCE module) {
    found = FindText(module, id);
    return !found.empty();
  });
  *this = CString(found.data(), static_cast<int>(found.size()));
  return !found.empty();
}
