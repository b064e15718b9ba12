// Which font GDI takes for labels.
#pragma once

#include <windows.h>

#include <string>

namespace tavix {

// What GDI takes for labels of one height: another font when fonts are installed or removed, or
// when another one replaces the default face.
struct FontIdentity {
  std::wstring face;
  DWORD check_sum = 0;  // of the font's file
  LONG height = 0;      // pixels, like the others
  LONG ascent = 0;
  LONG average_width = 0;
  LONG largest_width = 0;
  LONG weight = 0;

  [[nodiscard]] static FontIdentity OfLabels(int height);

  friend bool operator==(const FontIdentity&, const FontIdentity&) = default;
};

}  // namespace tavix
