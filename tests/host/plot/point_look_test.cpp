#include "host/plot/point_look.h"

#include <gtest/gtest.h>

#include <string_view>

namespace fieldhost {
namespace {

TEST(LookOf, KnowsTheFirstWordOfAFieldCode) {
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
  for (const auto& row : rows) EXPECT_EQ(LookOf(row.kind), LookOf(row.same_as)) << row.kind;
  EXPECT_EQ(0U, LookOf(""));
  for (const std::string_view kind :
       {"control", "boundary", "road", "tree", "manhole", "building", "terrain"}) {
    EXPECT_NE(0U, LookOf(kind)) << kind;
  }
}

// What the host takes for a legend the user has changed depends on it.
TEST(PointLooks, HaveOtherMarksThanTheBuiltInLegendsTheyReplace) {
  int number = 4;
  for (const PointLook& look : PointLooks()) EXPECT_NE(look.mark, number++);
  EXPECT_LE(number, 12);
}

TEST(PointLooks, AreLegendsTheLibraryTakes) {
  for (const PointLook& look : PointLooks()) {
    EXPECT_GE(look.mark, 1);
    EXPECT_LE(look.mark, 11);
    EXPECT_GE(look.pen_width, 1);
    EXPECT_GT(look.mark_size, 0);
    EXPECT_LE(look.mark_size, 20);
    EXPECT_EQ(0, look.mark_size % 2);
    EXPECT_EQ(0, look.label_height % 2);
    EXPECT_STRNE(look.title, "");
    EXPECT_LE(look.color, 0xFFFFFFU);
  }
  EXPECT_GT(PointLooks()[0].label_height, 0) << "names of plain points must show";
}

}  // namespace
}  // namespace fieldhost
