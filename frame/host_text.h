// Strings as they cross the exported calls.
#pragma once

#include <afxwin.h>

#include "platform/wide_text.h"
#include "store/name_pool.h"

namespace tavix {

// Valid as long as `text` is unchanged.
inline NameView ToNameView(const CString& text) {
  return AsUtf16(text, static_cast<std::size_t>(text.GetLength()));
}

inline CString ToHostString(NameView text) {
  return CString(AsWide(text.data()), static_cast<int>(text.size()));
}

}  // namespace tavix
