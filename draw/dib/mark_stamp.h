// Stamps of point marks, taken from the system's own drawing.
#pragma once

#include <optional>

#include "draw/dib/stamp.h"
#include "store/symbols.h"

namespace tavix {

// The mark of a symbol; none where it is too large to be worth it, or is not the same everywhere.
[[nodiscard]] std::optional<Stamp> MakeMarkStamp(const PointSymbol& symbol);

// Whether `stamp` is what the system draws as the symbol's mark, over any picture and cut by its
// edges.
[[nodiscard]] bool IsSystemsMark(const Stamp& stamp, const PointSymbol& symbol);

}  // namespace tavix
