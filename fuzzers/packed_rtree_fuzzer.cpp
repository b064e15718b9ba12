// Searches of a packed R-tree over any points: they find what a scan of all points finds.

#include <vector>

#include "fuzzers/fuzz_input.h"
#include "tests/store/tree_search.h"

namespace {

using namespace tavix;
using fuzz::FuzzInput;

std::vector<TreeEntry> EntriesFrom(FuzzInput& input) {
  std::vector<TreeEntry> entries;
  PackedRTree::Position position = 0;
  const unsigned groups = input.Below(8);
  for (unsigned group = 0; group < groups; ++group) {
    // A row of points: a few bytes make more than one leaf.
    GroundPoint at = input.FinitePosition();
    const GroundPoint step = input.FinitePosition();
    for (unsigned left = input.Take<std::uint8_t>(); left > 0; --left) {
      if (fuzz::IsFinite(at)) entries.push_back({at, position});
      position = static_cast<PackedRTree::Position>(position + 1 + left % 2);
      at = {at.north + step.north, at.east + step.east};
    }
  }
  return entries;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const std::vector<TreeEntry> entries = EntriesFrom(input);
  PackedRTree tree;
  Build(tree, entries);
  fuzz::Require(tree.IsEmpty() == entries.empty(), "a tree has the points it is built of");
  for (int searches = 0; searches < 20 && !input.IsEmpty(); ++searches) {
    ExtentBuilder box;
    box.Include(input.Position());
    box.Include(input.Position());
    const std::size_t most = 1 + input.Take<std::uint16_t>();
    fuzz::Require(InTree(tree, box.Extent(), most) == InScan(entries, box.Extent(), most),
                  "the tree finds what a scan finds, in order");
    const Positions all = InScan(entries, box.Extent(), entries.size() + 1);
    fuzz::Require(InTree(tree, box.Extent()) == all && MostInTree(tree, box.Extent()) >= all.size(),
                  "so does the search without an order, and the estimate is not below it");
  }
  return 0;
}
