#include "draw/ink_legend.h"

#include <gtest/gtest.h>

namespace tavix {
namespace {

TEST(InkLegend, TurnsEveryColourButWhiteToBlack) {
  const struct {
    const char* what;
    std::int32_t color;
    std::int32_t ink;
  } rows[] = {{"black", 0, 0},
              {"red", 0x0000FF, 0},
              {"yellow", 0x00FFFF, 0},
              {"cyan", 0xFFFF00, 0},
              {"light grey", 0xC0C0C0, 0},
              {"nearly white", 0xFEFFFF, 0},
              {"white", 0xFFFFFF, 0xFFFFFF},
              {"white with the unused byte set", 0x01FFFFFF, 0x01FFFFFF},
              {"yellow with the unused byte set", -0xFF0001, 0}};
  for (const auto& row : rows) {
    LegendTable legend;
    std::int16_t number = 0;
    ASSERT_EQ(0, legend.Add(true, {2, 10, 12, 1, 3, row.color}, &number));
    HanRec entry;
    ASSERT_EQ(0, InkLegend(legend).Get(number, &entry));
    EXPECT_EQ((HanRec{number, true, {2, 10, 12, 1, 3, row.ink}}), entry) << row.what;
  }
}

TEST(InkLegend, LeavesItsSourceAlone) {
  const LegendTable legend;
  EXPECT_EQ(LegendTable().Entries(), legend.Entries());
  const LegendTable ink = InkLegend(legend);
  EXPECT_EQ(LegendTable().Entries(), legend.Entries());
  EXPECT_NE(legend.Entries(), ink.Entries()) << "the built-in triangles are red";
}

}  // namespace
}  // namespace tavix
