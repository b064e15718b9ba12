// Point marks in ink.
#pragma once

#include <optional>

#include "draw/ink/ink_shape.h"
#include "store/symbols.h"

namespace tavix {

// A mark as the system draws it on a one-bit picture.
struct InkMark {
  // None where the mark is too large to be worth it, has another colour than black or white, or is
  // not the same everywhere.
  static std::optional<InkMark> Learn(const PointSymbol& symbol);

  void Draw(const InkBlock& block, ScreenPoint at) const { shape.Draw(block, at, is_black); }

  InkShape shape;
  bool is_black;
};

}  // namespace tavix
