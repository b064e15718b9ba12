#include "draw/dib/strokes.h"

#include <cstdlib>

#include "draw/dib/gdi_probe.h"

namespace tavix {

Strokes::Strokes(const Pen& pen, MemoryBudget& budget) : pen_(pen), budget_(budget) {}

const MarkMask* Strokes::Line(int dx, int dy) {
  constexpr std::size_t kSide = 2 * kLongest + 1;
  if (std::abs(pen_.width) > kWidest || std::abs(dx) > kLongest || std::abs(dy) > kLongest) {
    return nullptr;
  }
  if (lines_.empty()) lines_.resize(kSide * kSide);
  const std::size_t row = static_cast<std::size_t>(dy + kLongest);
  return Find(lines_[row * kSide + static_cast<std::size_t>(dx + kLongest)],
              [&] { return ProbeLine(pen_, dx, dy); });
}

const MarkMask* Strokes::Circle(int radius) {
  if (std::abs(pen_.width) > kWidest || std::abs(radius) > kLargestRadius) return nullptr;
  if (circles_.empty()) circles_.resize(kLargestRadius + 1);
  return Find(circles_[static_cast<std::size_t>(std::abs(radius))],
              [&] { return ProbeCircle(pen_, std::abs(radius)); });
}

template <class Probe>
const MarkMask* Strokes::Find(Entry& entry, Probe probe) {
  constexpr std::uint8_t kWorthProbing = 16;
  if (entry.mask) return &*entry.mask;
  if (entry.asked > kWorthProbing || budget_.IsSpent()) return nullptr;
  if (++entry.asked <= kWorthProbing) return nullptr;
  entry.mask = probe();
  if (!entry.mask) return nullptr;
  taken_ += budget_.Take(entry.mask->Bytes());
  return &*entry.mask;
}

}  // namespace tavix
