// The spatial index beside a point list: visits the points of a part of the ground in list order.
#pragma once

#include <algorithm>
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
// would visit, in the same order:
//   - the first few records are always scanned, and more of them while that yields enough hits;
//   - the next ones come from an R-tree, built once scans have cost as much as building it;
//   - records that moved since then, and those with a coordinate that is not finite, lie outside
//   the
//     tree and are tested one by one;
//   - records entered since then come last and are scanned.
template <class Record>
class PointIndex {
 public:
  using Records = RecordList<Record>;
  using Position = typename Records::Position;

  // Calls `visit(const Record&)` in list order for every record for whose position
  // `touches(GroundExtent)` is true, until it returns false. `touches` must be true for a box when
  // it is for a point in it.
  template <class Touches, class Visit>
  void ForEach(const Records& records, Touches touches, Visit visit) {
    const std::span<const Record> all = records.ByPosition();
    std::size_t at = 0;
    for (std::size_t to = std::min(kAlwaysScanned, all.size()); at < to; ++at) {
      const Record& record = all[at];
      if (record.removed || !touches(BoxOf(record))) continue;
      if (!visit(record)) return;
      to = std::min(to + kStepsPerHit, all.size());
    }
    if (at == all.size()) return;
    if (numbering_ != records.Numbering()) {
      Discard();
      numbering_ = records.Numbering();
    }
    if (scanned_ > kBuildingCost * all.size()) Build(all);
    if (SearchTree(all, at, touches, visit)) {
      Scan(all, std::max(at, end_), all.size(), touches, visit);
    }
  }

  // To be called when the record there has moved on the ground. The tree is discarded once 1/64 of
  // its records and 256 more lie outside it.
  void Moved(Position position) {
    if (position < kAlwaysScanned || position >= end_) return;
    const auto place = std::lower_bound(outside_.begin(), outside_.end(), position);
    try {
      if (place == outside_.end() || *place != position) outside_.insert(place, position);
    } catch (const std::bad_alloc&) {
      Discard();
    }
    if (outside_.size() > kAlwaysScanned + end_ / 64) Discard();
  }

 private:
  static constexpr std::size_t kAlwaysScanned = 256;
  static constexpr std::size_t kStepsPerHit = 512;  // what the tree needs to find one more point
  static constexpr std::size_t kBuildingCost = 32;  // in steps of a scan, for each record

  void Discard() {
    tree_ = PackedRTree();
    outside_.clear();
    end_ = kAlwaysScanned;
  }

  [[nodiscard]] static GroundExtent BoxOf(const Record& record) { return {record.at, record.at}; }

  // False when `visit` was.
  template <class Touches, class Visit>
  bool Scan(std::span<const Record> all, std::size_t from, std::size_t to, Touches& touches,
            Visit& visit) {
    bool going_on = true;
    std::size_t at = from;
    for (; going_on && at < to; ++at) {
      const Record& record = all[at];
      going_on = record.removed || !touches(BoxOf(record)) || visit(record);
    }
    scanned_ += at - from;
    return going_on;
  }

  // The records of the tree and those outside it, from the position `from` on.
  template <class Touches, class Visit>
  bool SearchTree(std::span<const Record> all, std::size_t from, Touches& touches, Visit& visit) {
    auto outside = std::lower_bound(outside_.begin(), outside_.end(), from);
    bool going_on = true;
    const auto visit_outside = [&](std::size_t to) {
      for (; going_on && outside != outside_.end() && *outside < to; ++outside) {
        going_on = Scan(all, *outside, *outside + 1, touches, visit);
      }
    };
    tree_.ForEachInOrder(touches, [&](Position at) {
      if (at < from) return true;
      visit_outside(at);
      const bool is_outside = outside != outside_.end() && *outside == at;
      const Record& record = all[at];
      if (going_on && !is_outside && !record.removed) going_on = visit(record);
      return going_on;
    });
    visit_outside(end_);
    return going_on;
  }

  // Without memory for a tree there is none: all is scanned.
  void Build(std::span<const Record> all) {
    scanned_ = 0;
    Discard();
    try {
      BuildTree(all);
    } catch (const std::bad_alloc&) {
      Discard();
    }
  }

  void BuildTree(std::span<const Record> all) {
    std::vector<PackedRTree::Entry> entries;
    entries.reserve(all.size());
    for (std::size_t i = kAlwaysScanned; i < all.size(); ++i) {
      const Record& record = all[i];
      const auto position = static_cast<Position>(i);
      if (record.removed) continue;
      if (std::isfinite(record.at.north) && std::isfinite(record.at.east)) {
        entries.push_back({record.at, position});
      } else {
        outside_.push_back(position);
      }
    }
    tree_.Build(std::move(entries));
    end_ = all.size();
  }

  PackedRTree tree_;
  std::size_t end_ = kAlwaysScanned;  // later records are neither in the tree nor in outside_
  std::uint64_t numbering_ = 0;       // of the list, for which the positions here are valid
  std::vector<Position> outside_;     // ascending
  std::size_t scanned_ = 0;           // records since the tree was built
};

}  // namespace tavix
