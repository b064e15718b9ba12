// The calls of the layer itself.
#include <afxwin.h>
#include <tavix/tavix_c.h>

#include "bindings/c/last_error.h"
#include "bindings/c/text_output.h"

int TAVIX_C_CDECL TavixC_Version(void) {
  return TAVIX_VERSION_MAJOR * 10000 + TAVIX_VERSION_MINOR * 100 + TAVIX_VERSION_PATCH;
}

int TAVIX_C_CDECL TavixC_LastError(wchar_t* text, int capacity, int* length) {
  const tavix_c::TextOutput output{text, capacity, length};
  if (!output.IsGiven()) return TAVIX_C_NULL_OUTPUT;
  output.Write(tavix_c::KeptReason());
  return 0;
}

int TAVIX_C_CDECL TavixC_PreTranslate(void* message) {
  return message && AfxPreTranslateMessage(static_cast<MSG*>(message)) ? 1 : 0;
}
