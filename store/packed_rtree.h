// A packed R-tree: the spatial index of points on the ground.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
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
  struct Entry {
    GroundPoint at;  // both coordinates finite
    std::uint32_t position = 0;
  };

  void Build(std::vector<Entry> entries);

  [[nodiscard]] bool IsEmpty() const { return points_.empty(); }

  // Calls `visit(position)` in ascending order for every point for which `touches(GroundExtent)` is
  // true, until it returns false. `touches` must be true for a box when it is for a point in it.
  template <class Touches, class Visit>
  void ForEachInOrder(Touches touches, Visit visit);

 private:
  static constexpr std::size_t kLeaf = 16;    // points of a leaf
  static constexpr std::size_t kBranch = 16;  // children of a node

  // Levels: the points themselves, the leaves, the nodes above them, ...
  static constexpr std::uint32_t kPoints = 0;
  static constexpr std::uint32_t kLeaves = 1;

  struct Node {
    GroundExtent box;
    std::uint32_t first;  // the smallest position
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

  void BuildLeaves();
  void BuildAbove(const std::vector<Node>& below);

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
  std::vector<std::uint32_t> positions_;   // of the points
  std::vector<std::vector<Node>> levels_;  // the leaves, the nodes above them, ..., the root
  std::vector<Candidate> queue_;           // of the current search; a member to reuse its memory
};

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
      if (!visit(at.position)) return;
      if ((at.index + 1) % kLeaf != 0) push_point(at.index + 1);
    } else if (at.level == kLeaves) {
      push_point(at.index * kLeaf);
    } else {
      const std::vector<Node>& nodes = levels_[at.level - 2];
      const std::size_t end = std::min((at.index + 1) * kBranch, nodes.size());
      for (std::size_t i = at.index * kBranch; i < end; ++i) {
        if (!touches(nodes[i].box)) continue;
        Push({nodes[i].first, at.level - 1, static_cast<std::uint32_t>(i)});
      }
    }
  }
}

}  // namespace tavix
