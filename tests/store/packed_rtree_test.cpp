#include "store/packed_rtree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "tests/store/tree_search.h"

namespace tavix {
namespace {

struct Spread {
  const char* name;
  std::function<GroundPoint(std::mt19937&)> point;
};

double Uniform(std::mt19937& random, double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random);
}

const Spread kSpreads[] = {
    {"even",
     [](std::mt19937& r) {
       return GroundPoint{Uniform(r, 0, 1e4), Uniform(r, 0, 1e4)};
     }},
    {"round the origin",
     [](std::mt19937& r) {
       return GroundPoint{Uniform(r, -5, 5), Uniform(r, -5, 5)};
     }},
    {"a grid with repeated points",
     [](std::mt19937& r) {
       return GroundPoint{std::floor(Uniform(r, 0, 20)), std::floor(Uniform(r, 0, 20))};
     }},
    {"one point",
     [](std::mt19937&) {
       return GroundPoint{-7.0, 3e5};
     }},
    {"a line",
     [](std::mt19937& r) {
       return GroundPoint{12.5, Uniform(r, -1e3, 1e3)};
     }},
    {"towns far apart",
     [](std::mt19937& r) {
       const double town = std::floor(Uniform(r, 0, 4)) * 1e5;
       return GroundPoint{town + Uniform(r, 0, 30), -town + Uniform(r, 0, 30)};
     }},
    {"a few extremely far away",
     [](std::mt19937& r) {
       const double far = Uniform(r, 0, 100) < 1 ? 1e300 : 1.0;
       return GroundPoint{far * Uniform(r, -1e3, 1e3), far * Uniform(r, -1e3, 1e3)};
     }},
    {"tiny",
     [](std::mt19937& r) {
       return GroundPoint{Uniform(r, 0, 1) * 1e-310, 0.0};
     }},
};

TEST(PackedRTree, GivesWhatAScanGives) {
  for (const Spread& spread : kSpreads) {
    for (const std::size_t count : {1U, 16U, 17U, 129U, 2500U}) {
      SCOPED_TRACE(testing::Message() << spread.name << ", " << count);
      std::mt19937 random(61);
      std::vector<TreeEntry> entries;
      unsigned position = 0;
      for (std::size_t i = 0; i < count; ++i) {
        position += 1 + static_cast<unsigned>(random() % 3);
        entries.push_back({spread.point(random), static_cast<PackedRTree::Position>(position)});
      }
      PackedRTree tree;
      Build(tree, entries);
      for (int i = 0; i < 300; ++i) {
        // A box at one of the points or between two: from nothing to all.
        ExtentBuilder box;
        const GroundPoint at = entries[random() % count].at;
        box.Include(at);
        const double reach = std::ldexp(1.0, static_cast<int>(random() % 40) - 20);
        box.Include(GroundPoint{at.north + reach * Uniform(random, -1, 1),
                                at.east + reach * Uniform(random, -1, 1)});
        if (i % 50 == 0) box.Include(entries[random() % count].at);
        const std::size_t most = i % 3 == 0 ? count : 1 + random() % 12;
        ASSERT_EQ(InScan(entries, box.Extent(), most), InTree(tree, box.Extent(), most)) << i;
        const Positions all = InScan(entries, box.Extent(), count);
        ASSERT_EQ(all, InTree(tree, box.Extent())) << i;
        ASSERT_LE(all.size(), MostInTree(tree, box.Extent())) << i;
      }
    }
  }
}

TEST(PackedRTree, WithoutPointsVisitsNothing) {
  PackedRTree tree;
  EXPECT_TRUE(tree.IsEmpty());
  EXPECT_TRUE(InTree(tree, {{1, 1}, {-1, -1}}, 10).empty());
  EXPECT_TRUE(InTree(tree, {{1, 1}, {-1, -1}}).empty());
  Build(tree, {{{0, 0}, 5}});
  EXPECT_EQ(Positions{5}, InTree(tree, {{1, 1}, {-1, -1}}, 10));
  Build(tree, {});
  EXPECT_TRUE(tree.IsEmpty());
  EXPECT_TRUE(InTree(tree, {{1, 1}, {-1, -1}}, 10).empty());
}

TEST(PackedRTree, TestsFewOfManyPoints) {
  std::mt19937 random(62);
  for (const Spread& spread : {kSpreads[0], kSpreads[5], kSpreads[6]}) {
    std::vector<TreeEntry> entries;
    for (std::size_t i = 0; i < PackedRTree::kMostPoints; ++i) {
      entries.push_back({spread.point(random), static_cast<PackedRTree::Position>(i)});
    }
    PackedRTree tree;
    Build(tree, entries);
    int tests = 0;
    for (std::size_t i = 0; i < 100; ++i) {
      const GroundPoint at = entries[i * 653].at;
      const GroundExtent box{{at.north + 0.1, at.east + 0.1}, {at.north - 0.1, at.east - 0.1}};
      tree.ForEachInOrder(
          [&](const GroundExtent& part) {
            ++tests;
            return Overlap(part, box);
          },
          [](PackedRTree::Position) { return true; });
    }
    EXPECT_LT(tests / 100, 400) << spread.name;
  }
}

}  // namespace
}  // namespace tavix
