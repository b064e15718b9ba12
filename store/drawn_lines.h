// The lines of an instance as a redraw needs them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "store/line_index.h"
#include "store/point_list.h"
#include "view/extent.h"
#include "view/ground_area.h"

namespace tavix {

// Lines in the order of drawing with their ends found, kept from one redraw to the next: the ends
// for as long as no point is removed, the extents of each 32 lines in a row for as long as no point
// moves. Whatever is out of date is found again by the next walk.
class DrawnLines {
 public:
  void Clear();

  void Append(LineKeys keys, std::int16_t legend);

  // Calls `visit(std::int16_t legend, GroundPoint start, GroundPoint end)` in order for each line
  // whose ends are both among `points`, which is the same list in every call. Lines that `sieve`
  // holds back are left out.
  template <class Visit>
  void ForEach(const CPntList& points, const SegmentSieve& sieve, Visit visit);

 private:
  using Position = CPntList::Position;
  static constexpr Position kMissing = 0xFFFFFFFF;
  static constexpr std::size_t kRow = 32;  // lines with common extents

  struct Drawn {
    LineKeys keys;
    std::int16_t legend = 0;
    Position start = kMissing;
    Position end = kMissing;

    [[nodiscard]] bool HasEnds() const { return start != kMissing && end != kMissing; }
  };

  void FindEnds(const CPntList& points);
  [[nodiscard]] static GroundExtent ExtentOf(std::span<const Drawn> row, const CPntList& points);

  std::vector<Drawn> lines_;

  // The ends of the first lines have been found, but for missing ones, in the list as it was then.
  std::size_t found_ = 0;
  std::size_t missing_ = 0;  // lines that lack an end
  std::uint64_t removals_ = 0;
  std::size_t points_ = 0;

  std::vector<GroundExtent> rows_;  // of the first rows, all of them full
  std::uint64_t moves_ = 0;         // of the list when they were found
};

template <class Visit>
void DrawnLines::ForEach(const CPntList& points, const SegmentSieve& sieve, Visit visit) {
  FindEnds(points);
  const std::span<const Drawn> all = lines_;
  for (std::size_t from = 0; from < all.size(); from += kRow) {
    const bool is_full = all.size() - from >= kRow;
    const auto row = all.subspan(from, is_full ? kRow : all.size() - from);
    if (is_full) {
      const std::size_t i = from / kRow;
      if (i == rows_.size()) rows_.push_back(ExtentOf(row, points));
      if (sieve.HoldsBack(rows_[i])) continue;
    }
    for (const Drawn& line : row) {
      if (!line.HasEnds()) continue;
      const GroundPoint start = points.At(line.start);
      const GroundPoint end = points.At(line.end);
      if (!sieve.HoldsBack(start, end)) visit(line.legend, start, end);
    }
  }
}

}  // namespace tavix
