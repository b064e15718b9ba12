// What hosts pass to the exported calls: strings in and out, and places to write to.
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

// False when one of a call's outputs is null: the call is then refused and writes none of them.
template <class... Outputs>
[[nodiscard]] bool CanWrite(const Outputs*... outputs) {
  return (... && (outputs != nullptr));
}

}  // namespace tavix
