// How GDI draws lines and marks, found out from its drawing.
#pragma once

#include <optional>

#include "draw/dib/bresenham.h"
#include "draw/dib/mark_mask.h"
#include "store/symbols.h"

namespace tavix {

// How GDI breaks the ties of lines; none where it does not step solid lines of one pixel by such a
// rule.
[[nodiscard]] std::optional<TieRule> ProbeTieRule();

// Whether lines stepped by `rule` are GDI's, pixel for pixel: short ones of every slope, and long
// ones that the picture's edges cut.
[[nodiscard]] bool IsGdiTieRule(const TieRule& rule);

// The mark of a symbol; none where it is too large to be worth it, or not the same everywhere.
[[nodiscard]] std::optional<MarkMask> ProbeMark(const PointSymbol& symbol);

// The line from a pixel up to one (dx, dy) away, and the hollow circle around a pixel; none where
// they are not the same everywhere.
[[nodiscard]] std::optional<MarkMask> ProbeLine(const Pen& pen, int dx, int dy);
[[nodiscard]] std::optional<MarkMask> ProbeCircle(const Pen& pen, int radius);

// Whether `mask` is what GDI draws as the symbol's mark, over any picture and cut by its edges.
[[nodiscard]] bool IsGdiMark(const MarkMask& mask, const PointSymbol& symbol);

}  // namespace tavix
