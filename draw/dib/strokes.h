// Short wide lines and small circles of one pen, drawn many times.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/glyph_table.h"
#include "draw/dib/mark_mask.h"
#include "store/symbols.h"

namespace tavix {

// What GDI draws for a step of so many pixels, or for a radius, as masks that have been read back
// and compared. Reading back takes as long as GDI takes for a hundred lines: it is worth it for
// what comes again and again.
class Strokes {
 public:
  // Widest pen and longest step along either axis that are worth it, and the largest radius, in
  // pixels.
  static constexpr int kWidest = 8;
  static constexpr int kLongest = 24;
  static constexpr int kLargestRadius = 64;

  // Keeps masks until `budget`, which outlives this, is spent.
  Strokes(const Pen& pen, MemoryBudget& budget);
  ~Strokes() { budget_.GiveBack(taken_); }
  Strokes(const Strokes&) = delete;
  Strokes& operator=(const Strokes&) = delete;

  // The line from a pixel up to one (dx, dy) away; null where it is left to GDI.
  [[nodiscard]] const MarkMask* Line(int dx, int dy);

  // The circle around a pixel; null where it is left to GDI.
  [[nodiscard]] const MarkMask* Circle(int radius);

 private:
  // A shape, and how often it has been asked for.
  struct Entry {
    std::uint8_t asked = 0;
    std::optional<MarkMask> mask;
  };

  template <class Probe>
  const MarkMask* Find(Entry& entry, Probe probe);

  Pen pen_;
  MemoryBudget& budget_;
  std::size_t taken_ = 0;
  std::vector<Entry> lines_;    // by step, row by row; empty before the first
  std::vector<Entry> circles_;  // by radius
};

}  // namespace tavix
