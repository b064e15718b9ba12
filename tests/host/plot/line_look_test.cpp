#include "host/plot/line_look.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace fieldhost {
namespace {

TEST(LineLooks, AreOneForEachKindAndAllDiffer) {
  std::map<LineKind, int> kinds;
  std::set<std::uint32_t> colors;
  for (const LineLook& look : LineLooks()) {
    ++kinds[look.kind];
    colors.insert(look.color);
    EXPECT_GE(look.style, 101);
    EXPECT_LE(look.style, 105);
    EXPECT_GE(look.pen_width, 1);
    // A dashed line without dashes would not be there.
    EXPECT_EQ(look.style == 101, look.dash == 0);
  }
  for (const LineKind kind :
       {LineKind::kAlignment, LineKind::kBreakline, LineKind::kFeature, LineKind::kLot,
        LineKind::kBoundary, LineKind::kContour, LineKind::kPipe, LineKind::kOther}) {
    EXPECT_EQ(1, kinds[kind]);
  }
  EXPECT_EQ(colors.size(), LineLooks().size());
}

}  // namespace
}  // namespace fieldhost
