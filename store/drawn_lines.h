// The lines of an instance as a redraw needs them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "store/line_index.h"
#include "store/point_list.h"
#include "view/extent.h"
#include "view/ground_area.h"

namespace tavix {

// Lines in the order of drawing, that of their ids, with their ends found, kept from one redraw to
// the next: the ends for as long as no point is removed, the extents of each 32 lines in a row for
// as long as no point moves. Whatever is out of date is found again by the next walk.
class DrawnLines {
 public:
  void Clear();
  // Makes room for this many lines.
  void Reserve(std::size_t count) { lines_.reserve(count); }

  // Its id is not below that of the last one.
  void Append(std::int16_t id, LineKeys keys, std::int16_t legend);

  // Of the one line with this id between these keys. False, and nothing changes, when there is none
  // or more than one.
  bool SetLegend(std::int16_t id, LineKeys keys, std::int16_t legend);
  bool Remove(std::int16_t id, LineKeys keys);

  // Calls `visit(std::int16_t legend, GroundPoint start, GroundPoint end)` in order for each line
  // whose ends are both among `points`, which is the same list in every call. Lines that `sieve`
  // holds back are left out.
  template <class Visit>
  void ForEach(const CPntList& points, const SegmentSieve& sieve, Visit visit);

 private:
  using Position = CPntList::Position;
  static constexpr Position kMissing = 0xFFFFFFFF;
  static constexpr std::size_t kRow = 32;  // lines with common extents

  struct Named {
    LineKeys keys;
    std::int16_t legend = 0;
    std::int16_t id = 0;
  };
  struct Ends {
    Position start = kMissing;
    Position end = kMissing;

    [[nodiscard]] bool AreThere() const { return start != kMissing && end != kMissing; }
  };

  [[nodiscard]] std::optional<std::size_t> Find(std::int16_t id, LineKeys keys) const;
  void FindEnds(const CPntList& points);
  [[nodiscard]] static GroundExtent ExtentOf(std::span<const Ends> row, const CPntList& points);

  std::vector<Named> lines_;

  std::vector<Ends> ends_;   // of the first lines, in the list as it was when they were found
  std::size_t missing_ = 0;  // lines that lack an end
  std::uint64_t removals_ = 0;
  std::size_t points_ = 0;

  std::vector<GroundExtent> rows_;  // of the first rows, all of them full
  std::uint64_t moves_ = 0;         // of the list when they were found
};

template <class Visit>
void DrawnLines::ForEach(const CPntList& points, const SegmentSieve& sieve, Visit visit) {
  FindEnds(points);
  const std::span<const Ends> all = ends_;
  for (std::size_t from = 0; from < all.size(); from += kRow) {
    const bool is_full = all.size() - from >= kRow;
    const auto row = all.subspan(from, is_full ? kRow : all.size() - from);
    if (is_full) {
      const std::size_t i = from / kRow;
      if (i == rows_.size()) rows_.push_back(ExtentOf(row, points));
      if (sieve.HoldsBack(rows_[i])) continue;
    }
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (!row[i].AreThere()) continue;
      const GroundPoint start = points.At(row[i].start);
      const GroundPoint end = points.At(row[i].end);
      if (!sieve.HoldsBack(start, end)) visit(lines_[from + i].legend, start, end);
    }
  }
}

}  // namespace tavix
