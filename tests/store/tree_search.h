// The searches of a packed R-tree and the plain scan that they are held against.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "store/packed_rtree.h"

namespace tavix {

using Positions = std::vector<PackedRTree::Position>;

struct TreeEntry {
  GroundPoint at;
  PackedRTree::Position position;
};

inline void Build(PackedRTree& tree, const std::vector<TreeEntry>& entries) {
  Positions positions;
  for (const TreeEntry& entry : entries) positions.push_back(entry.position);
  tree.Build(positions, [&](PackedRTree::Position position) {
    return std::ranges::lower_bound(entries, position, {}, &TreeEntry::position)->at;
  });
}

inline bool Overlap(const GroundExtent& a, const GroundExtent& b) {
  return a.min.north <= b.max.north && b.min.north <= a.max.north && a.min.east <= b.max.east &&
         b.min.east <= a.max.east;
}

// What the tree finds in a box in order, `most` entries at most.
inline Positions InTree(PackedRTree& tree, const GroundExtent& box, std::size_t most) {
  Positions found;
  tree.ForEachInOrder([&](const GroundExtent& part) { return Overlap(part, box); },
                      [&](PackedRTree::Position position) {
                        found.push_back(position);
                        return found.size() < most;
                      });
  return found;
}

// What the search without an order finds, sorted.
inline Positions InTree(const PackedRTree& tree, const GroundExtent& box) {
  Positions found;
  tree.ForEach([&](const GroundExtent& part) { return Overlap(part, box); },
               [&](PackedRTree::Position position) { found.push_back(position); });
  std::ranges::sort(found);
  return found;
}

// The estimate, which is not to be below what is found.
inline std::size_t MostInTree(const PackedRTree& tree, const GroundExtent& box) {
  return tree.MostTouching([&](const GroundExtent& part) { return Overlap(part, box); });
}

// What a scan of all entries finds, which are in the order of their positions.
inline Positions InScan(const std::vector<TreeEntry>& entries, const GroundExtent& box,
                        std::size_t most) {
  Positions found;
  for (const TreeEntry& entry : entries) {
    if (!Overlap({entry.at, entry.at}, box)) continue;
    found.push_back(entry.position);
    if (found.size() == most) break;
  }
  return found;
}

}  // namespace tavix
