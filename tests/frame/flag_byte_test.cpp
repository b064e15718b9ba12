// Flags count by their low byte: a host may leave anything in the rest of the register.
#include <tavix/tavix.h>

#include "tests/support/low_byte.h"
#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

const struct {
  int flag;
  bool on;
} kFlags[] = {{0, false},    {1, true},    {0x100, false},     {0x180, true},
              {-256, false}, {-255, true}, {0x7FFFFF00, false}};

class FlagByte : public PlotTest {
 protected:
  void SetUp() override { MakePlot(240, 180); }

  // Whether the redrawn window differs from `plain`.
  static bool ShowsMoreThan(const Picture& plain) { return !(plain == Redrawn()); }
};

TEST_F(FlagByte, DecidesWhetherARedrawKeepsTheView) {
  ASSERT_EQ(0, Enter(1, {0.0, 5000.0}, 1));
  for (const auto& [flag, on] : kFlags) {
    ASSERT_EQ(0, Tavix_Zom(-90.0, -120.0, 90.0, 120.0));
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_Drw, flag)) << flag;
    int visible = -1;
    ASSERT_EQ(0, Tavix_ChkCrd(0.0, 5000.0, &visible));
    EXPECT_EQ(on ? 0 : 1, visible) << flag;
  }
}

TEST_F(FlagByte, DecidesWhetherAChangeRedraws) {
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, 1));
  int number = 0;
  for (const auto& [flag, on] : kFlags) {
    ASSERT_EQ(0, Tavix_DrwFlg(on ? 0 : 1));
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_DrwFlg, flag)) << flag;
    Shown();
    ASSERT_FALSE(AwaitsPaint());
    ASSERT_EQ(0, Tavix_ChgPntNoNam(1, ++number, L"A"));
    EXPECT_EQ(on, AwaitsPaint()) << flag;
  }
}

TEST_F(FlagByte, TurnsThePaperFrameOnAndOff) {
  for (const auto& [flag, on] : kFlags) {
    ASSERT_EQ(0, Tavix_SetWak(on ? 0 : 1, 254, 2970, 254, 2100));
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_SetWak, flag, 254, 2970, 254, 2100)) << flag;
    int scale = 0;
    EXPECT_EQ(on ? 0 : -1, Tavix_GetWakScl(&scale)) << flag;
  }
}

TEST_F(FlagByte, ShowsAndHidesThePaperFrame) {
  const Picture plain = Redrawn();
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));
  for (const auto& [flag, on] : kFlags) {
    ASSERT_EQ(0, Tavix_WakDsp(on ? 0 : 1));
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_WakDsp, flag)) << flag;
    EXPECT_EQ(on, ShowsMoreThan(plain)) << flag;
  }
}

TEST_F(FlagByte, ShowsAndHidesTheScaleBar) {
  const Picture plain = Redrawn();
  for (const auto& [flag, on] : kFlags) {
    ASSERT_EQ(0, Tavix_SclBarDsp(on ? 0 : 1));
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_SclBarDsp, flag)) << flag;
    EXPECT_EQ(on, ShowsMoreThan(plain)) << flag;
  }
}

}  // namespace
}  // namespace tavix::test
