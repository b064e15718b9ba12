#include "host/plot/survey_symbols.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string_view>

namespace fieldhost {
namespace {

TEST(PointSymbolOf, KnowsTheFirstWordOfAFieldCode) {
  const struct {
    std::string_view kind;
    std::string_view same_as;
  } rows[] = {
      {"基準点", "control"},
      {"基準点 T-1", "control"},
      {"Control point", "control"},
      {"筆界点", "boundary"},
      {"境界標", "boundary"},
      {"道路左", "road"},
      {"Road edge", "road"},
      {"樹木", "tree"},
      {"マンホール", "manhole"},
      {"建物角", "building"},
      {"PILLAR", ""},
      {"BROADWAY", ""},
      {"a tree", ""},
  };
  for (const auto& row : rows)
    EXPECT_EQ(PointSymbolOf(row.kind), PointSymbolOf(row.same_as)) << row.kind;
  EXPECT_EQ(0U, PointSymbolOf(""));
  for (const std::string_view kind :
       {"control", "boundary", "road", "tree", "manhole", "building", "terrain"}) {
    EXPECT_NE(0U, PointSymbolOf(kind)) << kind;
  }
}

// What the host takes for a legend the user has changed depends on it.
TEST(PointSymbols, HaveOtherMarksThanTheBuiltInLegendsTheyReplace) {
  int number = 4;
  for (const PointSymbol& symbol : PointSymbols()) EXPECT_NE(symbol.mark, number++);
  EXPECT_LE(number, 12);
}

TEST(PointSymbols, AreLegendsTheLibraryTakes) {
  for (const PointSymbol& symbol : PointSymbols()) {
    EXPECT_GE(symbol.mark, 1);
    EXPECT_LE(symbol.mark, 11);
    EXPECT_GE(symbol.pen_width, 1);
    EXPECT_GT(symbol.mark_size, 0);
    EXPECT_LE(symbol.mark_size, 20);
    EXPECT_EQ(0, symbol.mark_size % 2);
    EXPECT_EQ(0, symbol.label_height % 2);
    EXPECT_STRNE(symbol.title, "");
    EXPECT_LE(symbol.color, 0xFFFFFFU);
  }
  EXPECT_GT(PointSymbols()[0].label_height, 0) << "names of plain points must show";
}

TEST(LineSymbols, AreOneForEachKindAndAllDiffer) {
  std::map<LineKind, int> kinds;
  std::set<std::uint32_t> colors;
  for (const LineSymbol& symbol : LineSymbols()) {
    ++kinds[symbol.kind];
    colors.insert(symbol.color);
    EXPECT_GE(symbol.style, 101);
    EXPECT_LE(symbol.style, 105);
    EXPECT_GE(symbol.pen_width, 1);
    // A dashed line without dashes would not be there.
    EXPECT_EQ(symbol.style == 101, symbol.dash == 0);
  }
  for (const LineKind kind :
       {LineKind::kAlignment, LineKind::kBreakline, LineKind::kFeature, LineKind::kParcel,
        LineKind::kBoundary, LineKind::kContour, LineKind::kPipe, LineKind::kOther}) {
    EXPECT_EQ(1, kinds[kind]);
  }
  EXPECT_EQ(colors.size(), LineSymbols().size());
}

}  // namespace
}  // namespace fieldhost
