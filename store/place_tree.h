// Finds places on the ground without looking at all of them, in an order of the caller's.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "view/coordinates.h"
#include "view/extent.h"

namespace tavix {

// A place with the position of its record in a list.
struct ListedPlace {
  GroundPoint at;  // both coordinates finite
  std::uint32_t position = 0;
};

// Places near each other lie in one leaf, leaves near each other in one node, and so on up; a node
// knows the ground box of all places below it and the first of their positions. How the places are
// spread does not matter: a leaf holds a fixed number of them.
//
// The tree is built once for a set of places and does not change.
class PlaceTree {
 public:
  void Build(std::vector<ListedPlace> places);

  [[nodiscard]] bool IsEmpty() const { return places_.empty(); }

  // Calls `visit(position)` in rising order for every place for which `touches(GroundExtent)` is
  // true, until it returns false. `touches` must be true for a box when it is for a place in it.
  template <class Touches, class Visit>
  void ForEachInOrder(Touches touches, Visit visit);

 private:
  static constexpr std::size_t kLeaf = 16;    // places
  static constexpr std::size_t kBranch = 16;  // nodes below a node

  // Levels: of the places themselves, of the leaves, of the nodes above them, ...
  static constexpr std::uint32_t kPlace = 0;
  static constexpr std::uint32_t kLeaves = 1;

  struct Node {
    GroundExtent box;
    std::uint32_t first;  // position
  };
  // What is still to be looked into, the first position first.
  struct Open {
    std::uint32_t position;
    std::uint32_t level;
    std::uint32_t index;  // on its level

    friend bool operator<(const Open& one, const Open& other) {
      return one.position > other.position;
    }
  };

  void BuildLeaves();
  void BuildAbove(const std::vector<Node>& below);

  void Push(const Open& open) {
    open_.push_back(open);
    std::push_heap(open_.begin(), open_.end());
  }
  Open Pop() {
    std::pop_heap(open_.begin(), open_.end());
    const Open first = open_.back();
    open_.pop_back();
    return first;
  }

  std::vector<GroundPoint> places_;        // neighbours in one leaf, there by position
  std::vector<std::uint32_t> positions_;   // of the places
  std::vector<std::vector<Node>> levels_;  // the leaves, the nodes above them, ..., the root
  std::vector<Open> open_;                 // of the search under way; kept for its memory
};

template <class Touches, class Visit>
void PlaceTree::ForEachInOrder(Touches touches, Visit visit) {
  if (IsEmpty()) return;
  open_.clear();
  Push({0, static_cast<std::uint32_t>(levels_.size()), 0});
  // Of a leaf only the first place that is still to come stands open.
  const auto open_place = [&](std::size_t from) {
    const std::size_t leaf_end = std::min((from / kLeaf + 1) * kLeaf, places_.size());
    for (std::size_t i = from; i < leaf_end; ++i) {
      if (!touches(GroundExtent{places_[i], places_[i]})) continue;
      Push({positions_[i], kPlace, static_cast<std::uint32_t>(i)});
      return;
    }
  };
  while (!open_.empty()) {
    const Open at = Pop();
    if (at.level == kPlace) {
      if (!visit(at.position)) return;
      if ((at.index + 1) % kLeaf != 0) open_place(at.index + 1);
    } else if (at.level == kLeaves) {
      open_place(at.index * kLeaf);
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
