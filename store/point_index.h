// The spatial index beside a point list: visits the points of a part of the ground in list order.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <new>
#include <span>
#include <vector>

#include "store/packed_rtree.h"
#include "store/record_list.h"

namespace tavix {

// Stands beside a list of records that have a position `at`. It visits what a scan of the list
// would visit, in the same order.
//
// The list is divided into stretches of 65,536 records. A stretch is scanned until scans have
// passed over twice as many records in vain; then an R-tree of it is built, of one stretch in a
// call for a few records, of two in a call for all, so that no call takes long. Of a stretch with a
// tree
//   - records that moved since it was built, and those with a coordinate that is not finite, lie
//     outside the tree and are tested one by one;
//   - records entered since then come last and are scanned.
template <class Record>
class PointIndex {
 public:
  using Records = RecordList<Record>;
  using Position = typename Records::Position;

  // `touches(GroundExtent)`, of both calls, must be true for a box when it is for a point in it.

  // Calls `visit(Position)` in list order for every record for whose position `touches` is true,
  // and maybe for some that have moved from such a position.
  template <class Touches, class Visit>
  void ForEach(const Records& records, Touches touches, Visit visit) {
    const std::span<const Record> all = records.ByPosition();
    const auto visit_at = [&](std::size_t at) {
      visit(static_cast<Position>(at));
      return true;
    };
    if (!Follow(records, 2)) {
      Scan(all, 0, all.size(), touches, visit_at);
      return;
    }
    for (std::size_t i = 0; i < stretches_.size(); ++i) {
      std::size_t from = i * kStretch;
      const Stretch* stretch = Indexed(all, i);
      if (stretch && stretch->tree.MostTouching(touches) < (stretch->end - from) / kManyShare) {
        VisitIndexed(all, *stretch, touches, visit_at);
        from = stretch->end;
      }
      Scan(all, from, EndOf(all, i), touches, visit_at);
    }
  }

  // The same from the first record for which it is true until `visit(const Record&)` returns false:
  // for a few records. The first ones of the list are always scanned, and more of them while that
  // yields enough hits.
  template <class Touches, class Visit>
  void ForFirst(const Records& records, Touches touches, Visit visit) {
    const std::span<const Record> all = records.ByPosition();
    const auto visit_at = [&](std::size_t at) { return visit(all[at]); };
    std::size_t at = 0;
    for (std::size_t to = std::min(kAlwaysScanned, all.size()); at < to; ++at) {
      const Record& record = all[at];
      if (record.removed || !touches(BoxOf(record))) continue;
      if (!visit(record)) return;
      to = std::min(to + kStepsPerHit, all.size());
    }
    if (at == all.size()) return;
    if (!Follow(records, 1)) {
      Scan(all, at, all.size(), touches, visit_at);
      return;
    }
    for (std::size_t i = at / kStretch; i < stretches_.size(); ++i) {
      at = std::max(at, i * kStretch);
      if (Stretch* stretch = Indexed(all, i)) {
        if (!SearchIndexed(all, *stretch, at, touches, visit_at)) return;
        at = std::max<std::size_t>(at, stretch->end);
      }
      if (!Scan(all, at, EndOf(all, i), touches, visit_at)) return;
    }
  }

  // To be called when the record there has moved on the ground. A tree is discarded once 1/64 of
  // its records and 256 more lie outside it.
  void Moved(Position position) {
    if (position / kStretch >= stretches_.size()) return;
    Stretch& stretch = stretches_[position / kStretch];
    if (position >= stretch.end) return;
    const auto place = std::lower_bound(stretch.outside.begin(), stretch.outside.end(), position);
    if (place != stretch.outside.end() && *place == position) return;
    try {
      stretch.outside.insert(place, position);
    } catch (const std::bad_alloc&) {
      stretch = Empty(position / kStretch);
    }
    if (stretch.outside.size() > kAlwaysScanned + (stretch.end - stretch.begin) / 64) {
      stretch = Empty(position / kStretch);
    }
  }

 private:
  static constexpr std::size_t kStretch = PackedRTree::kMostPoints;
  static constexpr std::size_t kBits = 64;  // of one number of hits_
  static constexpr std::size_t kAlwaysScanned = 256;
  static constexpr std::size_t kStepsPerHit = 512;  // what the tree needs to find one more point
  static constexpr std::size_t kManyShare = 4;      // a scan is faster for one in so many
  static constexpr std::size_t kBuildingCost = 2;   // steps of a scan in vain, for each record

  struct Stretch {
    std::size_t begin = 0;
    std::size_t end = 0;            // later records are neither in the tree nor in `outside`
    PackedRTree tree;               // of positions from `begin` on
    std::vector<Position> outside;  // ascending
  };

  [[nodiscard]] static Stretch Empty(std::size_t i) { return {i * kStretch, i * kStretch, {}, {}}; }
  [[nodiscard]] static std::size_t EndOf(std::span<const Record> all, std::size_t i) {
    return std::min((i + 1) * kStretch, all.size());
  }
  [[nodiscard]] static GroundExtent BoxOf(const Record& record) { return {record.at, record.at}; }

  // Begins a call that may build so many trees: all positions may have changed, and the list may
  // have grown. False without memory for it: then all is scanned.
  [[nodiscard]] bool Follow(const Records& records, int most_built) {
    if (numbering_ != records.Numbering()) stretches_.clear();
    numbering_ = records.Numbering();
    buildable_ = most_built;
    const std::size_t count = (records.ByPosition().size() + kStretch - 1) / kStretch;
    try {
      while (stretches_.size() < count) stretches_.push_back(Empty(stretches_.size()));
    } catch (const std::bad_alloc&) {
      stretches_.clear();
    }
    return stretches_.size() == count;
  }

  // The stretch if it has a tree, which is built when its time has come; otherwise null.
  [[nodiscard]] Stretch* Indexed(std::span<const Record> all, std::size_t i) {
    Stretch& stretch = stretches_[i];
    const std::size_t size = EndOf(all, i) - stretch.begin;
    if (stretch.end < EndOf(all, i) && in_vain_ >= kBuildingCost * size && buildable_ > 0) {
      in_vain_ -= kBuildingCost * size;
      --buildable_;
      try {
        Build(all.first(EndOf(all, i)), stretch);
      } catch (const std::bad_alloc&) {
        stretch = Empty(i);
      }
    }
    return stretch.end > stretch.begin ? &stretch : nullptr;
  }

  void Build(std::span<const Record> all, Stretch& stretch) {
    stretch.end = all.size();
    stretch.outside.clear();
    std::vector<PackedRTree::Position> inside;
    inside.reserve(stretch.end - stretch.begin);
    for (std::size_t at = stretch.begin; at < stretch.end; ++at) {
      const Record& record = all[at];
      if (record.removed) continue;
      if (std::isfinite(record.at.north) && std::isfinite(record.at.east)) {
        inside.push_back(static_cast<PackedRTree::Position>(at - stretch.begin));
      } else {
        stretch.outside.push_back(static_cast<Position>(at));
      }
    }
    hits_.resize(kStretch / kBits);
    stretch.tree.Build(
        inside, [records = all.subspan(stretch.begin)](std::size_t at) { return records[at].at; });
  }

  // False when `visit` was.
  template <class Touches, class Visit>
  bool Scan(std::span<const Record> all, std::size_t from, std::size_t to, Touches& touches,
            const Visit& visit) {
    std::size_t in_vain = 0;
    bool going_on = true;
    for (std::size_t at = from; going_on && at < to; ++at) {
      const Record& record = all[at];
      if (record.removed || !touches(BoxOf(record))) {
        ++in_vain;
      } else {
        going_on = visit(at);
      }
    }
    in_vain_ += in_vain;
    return going_on;
  }

  // The records of the tree and those outside it, from the position `from` on. False when `visit`
  // was.
  template <class Touches, class Visit>
  bool SearchIndexed(std::span<const Record> all, Stretch& stretch, std::size_t from,
                     Touches& touches, const Visit& visit) {
    const std::vector<Position>& outside = stretch.outside;
    auto next = std::lower_bound(outside.begin(), outside.end(), from);
    bool going_on = true;
    const auto visit_outside = [&](std::size_t to) {
      for (; going_on && next != outside.end() && *next < to; ++next) {
        going_on = Scan(all, *next, *next + 1, touches, visit);
      }
    };
    stretch.tree.ForEachInOrder(touches, [&](PackedRTree::Position offset) {
      const std::size_t at = stretch.begin + offset;
      if (at < from) return true;
      visit_outside(at);
      const bool is_outside = next != outside.end() && *next == at;
      if (going_on && !is_outside && !all[at].removed) going_on = visit(at);
      return going_on;
    });
    visit_outside(stretch.end);
    return going_on;
  }

  // All hits of the tree and those outside it are marked first, in a bit each, and then visited in
  // their order.
  template <class Touches, class Visit>
  void VisitIndexed(std::span<const Record> all, const Stretch& stretch, Touches& touches,
                    const Visit& visit) {
    const auto mark = [&](std::size_t offset) {
      hits_[offset / kBits] |= std::uint64_t{1} << offset % kBits;
    };
    stretch.tree.ForEach(touches, mark);
    for (const Position at : stretch.outside) {
      if (touches(BoxOf(all[at]))) mark(at - stretch.begin);
    }
    for (std::size_t i = 0; i < hits_.size(); ++i) {
      for (; hits_[i] != 0; hits_[i] &= hits_[i] - 1) {
        const std::size_t at =
            stretch.begin + i * kBits + static_cast<std::size_t>(std::countr_zero(hits_[i]));
        if (!all[at].removed) visit(at);
      }
    }
  }

  std::vector<Stretch> stretches_;
  std::uint64_t numbering_ = 0;      // of the list, for which the positions here are valid
  std::size_t in_vain_ = 0;          // records scanned without a hit, less those paid for by trees
  int buildable_ = 0;                // how many trees this call may still build
  std::vector<std::uint64_t> hits_;  // of one stretch; all zero between searches
};

}  // namespace tavix
