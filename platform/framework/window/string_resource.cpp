// Strings of the resources.

#include "framework/string.h"
#include "platform/framework/window/resource_chain.h"

namespace {

struct ResourceText {
  const wchar_t* text = nullptr;
  int length = 0;
};

// The system hands out the string in place, not ended by a zero, when asked with a size of 0.
ResourceText FindText(HINSTANCE module, UINT id) {
  ResourceText found;
  found.length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&found.text), 0);
  return found;
}

}  // namespace

BOOL CString::LoadStringW(UINT id) {
  ResourceText found;
  // A block of sixteen strings may hold the id's place and no text there: the next module may.
  afx::FindInModules([&](HINSTANCE module) {
    found = FindText(module, id);
    return found.length > 0;
  });
  if (found.length <= 0) {
    Empty();
    return FALSE;
  }
  *this = CString(found.text, found.length);
  return TRUE;
}
