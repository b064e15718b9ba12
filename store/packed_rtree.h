// A packed R-tree: the spatial index of points on the ground.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "view/coordinates.h"
#include "view/extent.h"

namespace tavix {

// Points with the positions of their records in a list, packed in Z-order: points near each other
// share a leaf, leaves near each other a node, and so on up to the root. Every node knows the
// extents of the points below it and the smallest of their positions, so that a search can follow
// the order of the list. Leaves and nodes are full, however the points are distributed.
//
// The tree is built once for a set of points and does not change.
class PackedRTree {
 public:
  using Position = std::uint16_t;
  static constexpr std::size_t kMostPoints = 0x10000;

  // `at(position)` gives the point, both coordinates finite. The positions ascend.
  template <class At>
  void Build(std::span<const Position> positions, At at);

  [[nodiscard]] bool IsEmpty() const { return points_.empty(); }

  // ---- Searches. `touches(GroundExtent)` must be true for a box when it is for a point in it.

  // Calls `visit(position)` in ascending order for every point for which `touches` is true, until
  // it returns false.
  template <class Touches, class Visit>
  void ForEachInOrder(Touches touches, Visit visit);

  // The same in no order, without end.
  template <class Touches, class Visit>
  void ForEach(Touches touches, Visit visit) const {
    if (!IsEmpty()) VisitBelow(levels_.size(), 0, touches, visit);
  }

  // How many points touch, estimated by a look at some hundred nodes at most; never too few.
  template <class Touches>
  [[nodiscard]] std::size_t MostTouching(Touches touches) const;

 private:
  static constexpr std::size_t kLeaf = 16;    // points of a leaf
  static constexpr std::size_t kBranch = 16;  // children of a node

  // Levels: the points themselves, the leaves, the nodes above them, ...
  static constexpr std::uint32_t kPoints = 0;
  static constexpr std::uint32_t kLeaves = 1;

  struct Node {
    GroundExtent box;
    Position first;  // the smallest position
  };
  struct ZOrdered {
    std::uint64_t code;  // the bits of both axes in turn: points with close codes are close
    Position position;
  };
  // What a search has still to open, the smallest position first.
  struct Candidate {
    std::uint32_t position;
    std::uint32_t level;
    std::uint32_t index;  // on its level

    friend bool operator<(const Candidate& one, const Candidate& other) {
      return one.position > other.position;
    }
  };

  // The positions in Z-order; points_ has their points.
  [[nodiscard]] std::vector<ZOrdered> InZOrder(std::span<const Position> positions) const;
  void BuildNodes();
  void BuildLeaves();
  void BuildAbove(const std::vector<Node>& below);

  [[nodiscard]] std::span<const Node> Children(std::size_t level, std::size_t index) const {
    const std::span<const Node> nodes = levels_[level - 2];
    return nodes.subspan(index * kBranch, std::min(kBranch, nodes.size() - index * kBranch));
  }
  template <class Touches, class Visit>
  void VisitBelow(std::size_t level, std::size_t index, Touches& touches, Visit& visit) const;

  void Push(const Candidate& candidate) {
    queue_.push_back(candidate);
    std::push_heap(queue_.begin(), queue_.end());
  }
  Candidate Pop() {
    std::pop_heap(queue_.begin(), queue_.end());
    const Candidate first = queue_.back();
    queue_.pop_back();
    return first;
  }

  std::vector<GroundPoint> points_;        // leaf by leaf, by position within a leaf
  std::vector<Position> positions_;        // of the points
  std::vector<std::vector<Node>> levels_;  // the leaves, the nodes above them, ..., the root
  std::vector<Candidate> queue_;           // of the current search; a member to reuse its memory
};

template <class At>
void PackedRTree::Build(std::span<const Position> positions, At at) {
  points_.clear();
  points_.reserve(positions.size());
  for (const Position position : positions) points_.push_back(at(position));
  std::vector<ZOrdered> order = InZOrder(positions);
  positions_.clear();
  positions_.reserve(order.size());
  for (std::size_t from = 0; from < order.size(); from += kLeaf) {
    const auto leaf = std::span(order).subspan(from, std::min(kLeaf, order.size() - from));
    std::ranges::sort(leaf, {}, &ZOrdered::position);
    for (const ZOrdered& each : leaf) {
      points_[positions_.size()] = at(each.position);
      positions_.push_back(each.position);
    }
  }
  BuildNodes();
}

template <class Touches, class Visit>
void PackedRTree::ForEachInOrder(Touches touches, Visit visit) {
  if (IsEmpty()) return;
  queue_.clear();
  Push({0, static_cast<std::uint32_t>(levels_.size()), 0});
  // Of a leaf only the next point waits in the queue.
  const auto push_point = [&](std::size_t from) {
    const std::size_t leaf_end = std::min((from / kLeaf + 1) * kLeaf, points_.size());
    for (std::size_t i = from; i < leaf_end; ++i) {
      if (!touches(GroundExtent{points_[i], points_[i]})) continue;
      Push({positions_[i], kPoints, static_cast<std::uint32_t>(i)});
      return;
    }
  };
  while (!queue_.empty()) {
    const Candidate at = Pop();
    if (at.level == kPoints) {
      if (!visit(static_cast<Position>(at.position))) return;
      if ((at.index + 1) % kLeaf != 0) push_point(at.index + 1);
    } else if (at.level == kLeaves) {
      push_point(at.index * kLeaf);
    } else {
      auto index = static_cast<std::uint32_t>(at.index * kBranch);
      for (const Node& child : Children(at.level, at.index)) {
        if (touches(child.box)) Push({child.first, at.level - 1, index});
        ++index;
      }
    }
  }
}

template <class Touches, class Visit>
void PackedRTree::VisitBelow(std::size_t level, std::size_t index, Touches& touches,
                             Visit& visit) const {
  if (level == kLeaves) {
    const std::size_t end = std::min((index + 1) * kLeaf, points_.size());
    for (std::size_t i = index * kLeaf; i < end; ++i) {
      if (touches(GroundExtent{points_[i], points_[i]})) visit(positions_[i]);
    }
    return;
  }
  std::size_t child = index * kBranch;
  for (const Node& node : Children(level, index)) {
    if (touches(node.box)) VisitBelow(level - 1, child, touches, visit);
    ++child;
  }
}

template <class Touches>
std::size_t PackedRTree::MostTouching(Touches touches) const {
  if (IsEmpty() || !touches(levels_.back().front().box)) return 0;
  constexpr std::size_t kFewNodes = 256;
  std::size_t below = kLeaf;  // a node of the level
  auto level = levels_.begin();
  for (; level->size() > kFewNodes; ++level) below *= kBranch;
  return below * static_cast<std::size_t>(std::ranges::count_if(
                     *level, [&](const Node& node) { return touches(node.box); }));
}

}  // namespace tavix
