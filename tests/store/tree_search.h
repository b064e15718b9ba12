// The search of a packed R-tree and the plain scan that it is held against.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "store/packed_rtree.h"

namespace tavix {

using Positions = std::vector<std::uint32_t>;

inline bool Overlap(const GroundExtent& a, const GroundExtent& b) {
  return a.min.north <= b.max.north && b.min.north <= a.max.north && a.min.east <= b.max.east &&
         b.min.east <= a.max.east;
}

// What the tree finds in a box, `most` entries at most.
inline Positions InTree(PackedRTree& tree, const GroundExtent& box, std::size_t most) {
  Positions found;
  tree.ForEachInOrder([&](const GroundExtent& part) { return Overlap(part, box); },
                      [&](std::uint32_t position) {
                        found.push_back(position);
                        return found.size() < most;
                      });
  return found;
}

// What a scan of all entries finds, which are in the order of their positions.
inline Positions InScan(const std::vector<PackedRTree::Entry>& entries, const GroundExtent& box,
                        std::size_t most) {
  Positions found;
  for (const PackedRTree::Entry& entry : entries) {
    if (!Overlap({entry.at, entry.at}, box)) continue;
    found.push_back(entry.position);
    if (found.size() == most) break;
  }
  return found;
}

}  // namespace tavix
