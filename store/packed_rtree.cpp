#include "store/packed_rtree.h"

#include <array>
#include <bit>
#include <limits>
#include <numeric>
#include <utility>

namespace tavix {
namespace {

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

// Sorts by code, the values with one code as they come: by one digit after another, from the last.
template <class Value>
void SortByCode(std::vector<Value>& values) {
  constexpr int kBits = 11;
  constexpr std::size_t kDigits = std::size_t{1} << kBits;
  std::vector<Value> sorted(values.size());
  for (int shift = 0; shift < 64; shift += kBits) {
    const auto digit = [=](const Value& value) { return value.code >> shift & (kDigits - 1); };
    std::array<std::uint32_t, kDigits> places{};
    for (const Value& value : values) ++places[digit(value)];
    if (places[digit(values.front())] == values.size()) continue;
    std::exclusive_scan(places.begin(), places.end(), places.begin(), 0U);
    for (const Value& value : values) sorted[places[digit(value)]++] = value;
    values.swap(sorted);
  }
}

}  // namespace

std::vector<PackedRTree::ZOrdered> PackedRTree::InZOrder(
    std::span<const Position> positions) const {
  Axis north;
  Axis east;
  for (const GroundPoint point : points_) {
    north.Include(point.north);
    east.Include(point.east);
  }
  std::vector<ZOrdered> order;
  order.reserve(positions.size());
  for (const GroundPoint point : points_) {
    const std::uint64_t code =
        SpreadBits(north.Number(point.north)) << 1 | SpreadBits(east.Number(point.east));
    order.push_back({code, positions[order.size()]});
  }
  if (!order.empty()) SortByCode(order);
  return order;
}

void PackedRTree::BuildNodes() {
  levels_.clear();
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
    Position first = below[from].first;
    for (std::size_t i = from; i < std::min(from + kBranch, below.size()); ++i) {
      box.Include(below[i].box);
      first = std::min(first, below[i].first);
    }
    nodes.push_back({box.Extent(), first});
  }
  levels_.push_back(std::move(nodes));
}

}  // namespace tavix
