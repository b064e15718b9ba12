// Visits the points of a part of the ground in list order, without walking over all of them.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "store/place_tree.h"
#include "store/record_list.h"

namespace tavix {

// Stands beside a list of records with coordinates `x` and `y`. It gives what the walk over the
// list would give, in the same order:
//   - the first few records are walked over in any case, and more while that finds enough;
//   - then come those from a tree of places, made when walks have cost as much as making it;
//   - those that moved since, and those without a finite place, are loose: looked at one by one;
//   - and so are those entered since, behind all others.
template <class Record>
class PointFinder {
 public:
  using Records = RecordList<Record>;
  using Position = typename Records::Position;

  // Calls `visit(const Record&)` in list order for every record for whose place
  // `touches(GroundExtent)` is true, until it returns false. `touches` must be true for a box when
  // it is for a place in it.
  template <class Touches, class Visit>
  void ForEach(const Records& records, Touches touches, Visit visit) {
    const std::span<const Record> all = records.ByPosition();
    std::size_t at = 0;
    for (std::size_t to = std::min(kAlways, all.size()); at < to; ++at) {
      const Record& record = all[at];
      if (record.removed || !touches(PlaceOf(record))) continue;
      if (!visit(record)) return;
      to = std::min(to + kStepsAFind, all.size());
    }
    if (at == all.size()) return;
    if (numbering_ != records.Numbering()) {
      GiveUp();
      numbering_ = records.Numbering();
    }
    if (walked_ > kCostOfMaking * all.size()) Make(all);
    if (VisitTree(all, at, touches, visit)) {
      Walk(all, std::max(at, end_), all.size(), touches, visit);
    }
  }

  // The record there has another place now.
  void Moved(Position position) {
    if (position < kAlways || position >= end_) return;
    const auto place = std::lower_bound(loose_.begin(), loose_.end(), position);
    if (place == loose_.end() || *place != position) loose_.insert(place, position);
    if (loose_.size() > kAlways + end_ / kFewLoose) GiveUp();
  }

 private:
  static constexpr std::size_t kAlways = 256;
  static constexpr std::size_t kStepsAFind = 512;   // what the tree takes to find one more
  static constexpr std::size_t kCostOfMaking = 32;  // in steps of a walk, for each record
  static constexpr std::size_t kFewLoose = 64;      // one in so many may be loose

  void GiveUp() {
    tree_ = PlaceTree();
    loose_.clear();
    end_ = kAlways;
  }

  [[nodiscard]] static GroundExtent PlaceOf(const Record& record) {
    return {{record.x, record.y}, {record.x, record.y}};
  }

  // False when `visit` was.
  template <class Touches, class Visit>
  bool Walk(std::span<const Record> all, std::size_t from, std::size_t to, Touches& touches,
            Visit& visit) {
    bool going_on = true;
    std::size_t at = from;
    for (; going_on && at < to; ++at) {
      const Record& record = all[at];
      going_on = record.removed || !touches(PlaceOf(record)) || visit(record);
    }
    walked_ += at - from;
    return going_on;
  }

  // From the position `from` on.
  template <class Touches, class Visit>
  bool VisitTree(std::span<const Record> all, std::size_t from, Touches& touches, Visit& visit) {
    auto loose = std::lower_bound(loose_.begin(), loose_.end(), from);
    bool going_on = true;
    const auto visit_loose = [&](std::size_t to) {
      for (; going_on && loose != loose_.end() && *loose < to; ++loose) {
        going_on = Walk(all, *loose, *loose + 1, touches, visit);
      }
    };
    tree_.ForEachInOrder(touches, [&](Position at) {
      if (at < from) return true;
      visit_loose(at);
      const bool is_loose = loose != loose_.end() && *loose == at;
      const Record& record = all[at];
      if (going_on && !is_loose && !record.removed) going_on = visit(record);
      return going_on;
    });
    visit_loose(end_);
    return going_on;
  }

  void Make(std::span<const Record> all) {
    walked_ = 0;
    end_ = all.size();
    loose_.clear();
    std::vector<ListedPlace> places;
    places.reserve(all.size());
    for (std::size_t i = kAlways; i < end_; ++i) {
      const Record& record = all[i];
      const auto at = static_cast<Position>(i);
      if (record.removed) continue;
      if (std::isfinite(record.x) && std::isfinite(record.y)) {
        places.push_back({{record.x, record.y}, at});
      } else {
        loose_.push_back(at);
      }
    }
    tree_.Build(std::move(places));
  }

  PlaceTree tree_;
  std::size_t end_ = kAlways;    // records from here on are in neither tree nor loose
  std::uint64_t numbering_ = 0;  // that the positions here are of
  std::vector<Position> loose_;  // rising
  std::size_t walked_ = 0;       // steps over records since the tree was made
};

}  // namespace tavix
