#include "store/place_tree.h"

#include <bit>
#include <span>
#include <utility>

namespace tavix {
namespace {

// A number that rises with the coordinate. Neighbouring numbers are neighbouring doubles: one place
// far off does not press the others together, as it would on a scale from the least to the largest.
std::uint64_t Rising(double coordinate) {
  constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
  const auto bits = std::bit_cast<std::uint64_t>(coordinate);
  return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

// The rising numbers of one axis, cut to 32 bits from the least on.
class Axis {
 public:
  void Include(double coordinate) {
    const std::uint64_t number = Rising(coordinate);
    least_ = std::min(least_, number);
    most_ = std::max(most_, number);
  }
  [[nodiscard]] std::uint32_t Number(double coordinate) const {
    const int excess = std::max(0, static_cast<int>(std::bit_width(most_ - least_)) - 32);
    return static_cast<std::uint32_t>((Rising(coordinate) - least_) >> excess);
  }

 private:
  std::uint64_t least_ = std::numeric_limits<std::uint64_t>::max();
  std::uint64_t most_ = 0;
};

// The bits of a number with a free one between each two.
std::uint64_t Spread(std::uint32_t number) {
  std::uint64_t bits = number;
  bits = (bits | bits << 16) & 0x0000FFFF0000FFFFULL;
  bits = (bits | bits << 8) & 0x00FF00FF00FF00FFULL;
  bits = (bits | bits << 4) & 0x0F0F0F0F0F0F0F0FULL;
  bits = (bits | bits << 2) & 0x3333333333333333ULL;
  return (bits | bits << 1) & 0x5555555555555555ULL;
}

struct CurvePlace {
  std::uint64_t number;  // along the curve
  std::uint32_t index;   // among the places
};

// The Z-order curve: the bits of both axes in turn, so that places with close numbers are close.
std::vector<CurvePlace> AlongCurve(const std::vector<ListedPlace>& places) {
  Axis x;
  Axis y;
  for (const ListedPlace& place : places) {
    x.Include(place.at.north);
    y.Include(place.at.east);
  }
  std::vector<CurvePlace> curve;
  curve.reserve(places.size());
  for (const ListedPlace& place : places) {
    const std::uint64_t number =
        Spread(x.Number(place.at.north)) << 1 | Spread(y.Number(place.at.east));
    curve.push_back({number, static_cast<std::uint32_t>(curve.size())});
  }
  std::sort(curve.begin(), curve.end(), [](const CurvePlace& one, const CurvePlace& other) {
    return one.number < other.number;
  });
  return curve;
}

}  // namespace

void PlaceTree::Build(std::vector<ListedPlace> places) {
  places_.clear();
  positions_.clear();
  levels_.clear();
  places_.reserve(places.size());
  positions_.reserve(places.size());
  std::vector<CurvePlace> curve = AlongCurve(places);
  for (std::size_t from = 0; from < curve.size(); from += kLeaf) {
    const auto leaf = std::span(curve).subspan(from, std::min(kLeaf, curve.size() - from));
    std::sort(leaf.begin(), leaf.end(), [&](const CurvePlace& one, const CurvePlace& other) {
      return places[one.index].position < places[other.index].position;
    });
    for (const CurvePlace& each : leaf) {
      places_.push_back(places[each.index].at);
      positions_.push_back(places[each.index].position);
    }
  }
  if (IsEmpty()) return;
  BuildLeaves();
  while (levels_.back().size() > 1) BuildAbove(levels_.back());
}

void PlaceTree::BuildLeaves() {
  std::vector<Node> leaves;
  leaves.reserve(places_.size() / kLeaf + 1);
  for (std::size_t from = 0; from < places_.size(); from += kLeaf) {
    ExtentBuilder box;
    for (std::size_t i = from; i < std::min(from + kLeaf, places_.size()); ++i) {
      box.Include(places_[i]);
    }
    leaves.push_back({box.Extent(), positions_[from]});
  }
  levels_.push_back(std::move(leaves));
}

void PlaceTree::BuildAbove(const std::vector<Node>& below) {
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
