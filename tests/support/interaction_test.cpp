#include "tests/support/interaction_test.h"

#include <tavix/tavix.h>

#include <cmath>

#include "tests/support/message_pump.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {

void InteractionTest::SetUp() {
  MakePlot(240, 180);
  legend_ = AddLegend(kCross);
}

void InteractionTest::MakePlotWithButtons(int width, int height) {
  ASSERT_EQ(0, LinkPlot(width, height));
  Tavix_SetBtn(1);
  ASSERT_EQ(0, Tavix_Dsp(1));
  ASSERT_EQ(0, Tavix_Drw(1));
  ASSERT_TRUE(PumpUntil([] { return !AwaitsPaint(); }));
}

Commands InteractionTest::Reports() {
  DrainMessages();
  const auto& all = host_.Commands();
  Commands fresh(all.begin() + static_cast<std::ptrdiff_t>(heard_), all.end());
  heard_ = all.size();
  return fresh;
}

void InteractionTest::ExpectWholeViewAndBack(const Picture& whole, const Picture& before) {
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(whole, Shown()));
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(before, Shown()));
}

Ground InteractionTest::Captured(POINT pixel) {
  constexpr int kCommand = 77;
  Tavix_CrdStt(kCommand);
  Tap(pixel);
  Ground at{};
  EXPECT_EQ(0, Tavix_CrdGet(&at.x, &at.y));
  Tavix_CrdEnd();
  EXPECT_EQ((Commands{{kCommand, 0}}), Reports());
  return at;
}

double InteractionTest::Scale() {
  const Ground a = Captured({1, 1});
  const Ground b = Captured({101, 1});
  return 100.0 / std::hypot(b.x - a.x, b.y - a.y);
}

}  // namespace tavix::test
