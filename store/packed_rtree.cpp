#include "store/packed_rtree.h"

#include <bit>
#include <limits>
#include <span>
#include <utility>

namespace tavix {
namespace {

using Entry = PackedRTree::Entry;

// Bits that sort like the doubles. Neighbouring numbers are neighbouring doubles: one point far
// away does not press the others together, as it would on a linear scale.
std::uint64_t OrderedBits(double coordinate) {
  constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
  const auto bits = std::bit_cast<std::uint64_t>(coordinate);
  return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

// Numbers the coordinates of one axis in 32 bits, from the smallest one up.
class Axis {
 public:
  void Include(double coordinate) {
    const std::uint64_t bits = OrderedBits(coordinate);
    least_ = std::min(least_, bits);
    most_ = std::max(most_, bits);
  }
  [[nodiscard]] std::uint32_t Number(double coordinate) const {
    const int excess = std::max(0, static_cast<int>(std::bit_width(most_ - least_)) - 32);
    return static_cast<std::uint32_t>((OrderedBits(coordinate) - least_) >> excess);
  }

 private:
  std::uint64_t least_ = std::numeric_limits<std::uint64_t>::max();
  std::uint64_t most_ = 0;
};

// The bits of a number with a free bit between each two.
std::uint64_t SpreadBits(std::uint32_t number) {
  std::uint64_t bits = number;
  bits = (bits | bits << 16) & 0x0000FFFF0000FFFFULL;
  bits = (bits | bits << 8) & 0x00FF00FF00FF00FFULL;
  bits = (bits | bits << 4) & 0x0F0F0F0F0F0F0F0FULL;
  bits = (bits | bits << 2) & 0x3333333333333333ULL;
  return (bits | bits << 1) & 0x5555555555555555ULL;
}

struct ZOrdered {
  std::uint64_t code;   // the bits of both axes in turn: points with close codes are close
  std::uint32_t index;  // of the entry
};

std::vector<ZOrdered> InZOrder(const std::vector<Entry>& entries) {
  Axis north;
  Axis east;
  for (const Entry& entry : entries) {
    north.Include(entry.at.north);
    east.Include(entry.at.east);
  }
  std::vector<ZOrdered> order;
  order.reserve(entries.size());
  for (const Entry& entry : entries) {
    const std::uint64_t code =
        SpreadBits(north.Number(entry.at.north)) << 1 | SpreadBits(east.Number(entry.at.east));
    order.push_back({code, static_cast<std::uint32_t>(order.size())});
  }
  std::sort(order.begin(), order.end(),
            [](const ZOrdered& one, const ZOrdered& other) { return one.code < other.code; });
  return order;
}

}  // namespace

void PackedRTree::Build(std::vector<Entry> entries) {
  points_.clear();
  positions_.clear();
  levels_.clear();
  points_.reserve(entries.size());
  positions_.reserve(entries.size());
  std::vector<ZOrdered> order = InZOrder(entries);
  for (std::size_t from = 0; from < order.size(); from += kLeaf) {
    const auto leaf = std::span(order).subspan(from, std::min(kLeaf, order.size() - from));
    std::sort(leaf.begin(), leaf.end(), [&](const ZOrdered& one, const ZOrdered& other) {
      return entries[one.index].position < entries[other.index].position;
    });
    for (const ZOrdered& each : leaf) {
      points_.push_back(entries[each.index].at);
      positions_.push_back(entries[each.index].position);
    }
  }
  if (IsEmpty()) return;
  BuildLeaves();
  while (levels_.back().size() > 1) BuildAbove(levels_.back());
}

void PackedRTree::BuildLeaves() {
  std::vector<Node> leaves;
  leaves.reserve(points_.size() / kLeaf + 1);
  for (std::size_t from = 0; from < points_.size(); from += kLeaf) {
    ExtentBuilder box;
    for (std::size_t i = from; i < std::min(from + kLeaf, points_.size()); ++i) {
      box.Include(points_[i]);
    }
    leaves.push_back({box.Extent(), positions_[from]});
  }
  levels_.push_back(std::move(leaves));
}

void PackedRTree::BuildAbove(const std::vector<Node>& below) {
  std::vector<Node> nodes;
  nodes.reserve(below.size() / kBranch + 1);
  for (std::size_t from = 0; from < below.size(); from += kBranch) {
    ExtentBuilder box;
    std::uint32_t first = below[from].first;
    for (std::size_t i = from; i < std::min(from + kBranch, below.size()); ++i) {
      box.Include(below[i].box);
      first = std::min(first, below[i].first);
    }
    nodes.push_back({box.Extent(), first});
  }
  levels_.push_back(std::move(nodes));
}

}  // namespace tavix
