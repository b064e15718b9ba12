#include "bindings/c/text_output.h"

#include <algorithm>

namespace tavix_c {
namespace {

bool IsLeadSurrogate(wchar_t ch) { return 0xD800 <= ch && ch <= 0xDBFF; }
bool IsTrailSurrogate(wchar_t ch) { return 0xDC00 <= ch && ch <= 0xDFFF; }

}  // namespace

void TextOutput::Write(std::wstring_view text) const {
  *length = static_cast<int>(text.size());
  if (capacity <= 0) return;
  std::size_t fits = std::min(text.size(), static_cast<std::size_t>(capacity) - 1);
  const bool cuts_a_pair = 0 < fits && fits < text.size() && IsLeadSurrogate(text[fits - 1]) &&
                           IsTrailSurrogate(text[fits]);
  if (cuts_a_pair) --fits;
  std::copy_n(text.data(), fits, buffer);
  buffer[fits] = 0;
}

}  // namespace tavix_c
