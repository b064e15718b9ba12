// The same work very often: what the library holds at the end is what it held at the beginning.
#include <tavix/tavix.h>

#include <iostream>
#include <tuple>

#include "tests/figure/second_program.h"
#include "tests/reliability/saved_legend.h"
#include "tests/reliability/scripted_life.h"
#include "tests/reliability/system_faults.h"
#include "tests/reliability/whole_run.h"
#include "tests/support/message_pump.h"
#include "tests/support/plot_test.h"
#include "tests/support/window_count.h"

namespace tavix::test {
namespace {

class Endurance : public PlotTest {
 protected:
  // Does the work a few times to fill the caches, then `rounds` times.
  template <class Work>
  static void Endure(const char* what, int rounds, Work work) {
    constexpr int kWarmUp = 3;
    for (int i = 0; i < kWarmUp; ++i) work();
    const Holdings before = HeldByLibrary();
    const int windows = CountWindows();
    for (int i = 0; i < rounds; ++i) work();
    const Holdings after = HeldByLibrary();
    EXPECT_EQ(before.files, after.files);
    EXPECT_LE(after.memory, before.memory + kMostTemporary);
    EXPECT_EQ(before.drawing, after.drawing);
    EXPECT_EQ(windows, CountWindows());
    std::cout << rounds << " " << what << ": blocks of memory " << before.memory << " -> "
              << after.memory << ", GDI objects " << after.drawing << ", file handles "
              << after.files << ", windows " << windows << "\n";
  }
};

TEST_F(Endurance, OfRedraws) {
  std::ignore = HeldByLibrary();  // counts from here on
  MakePlot(240, 180);
  for (int key = 0; key < 200; ++key) {
    Tavix_SelPntHan(static_cast<short>(1 + key % 11));
    Enter(key, GroundAt({key, key / 2}), static_cast<short>(1 + key % 11), L"name", key);
    if (key > 0) Tavix_EntLin(key - 1, key);
  }
  Tavix_FigStt(1, 104);
  Tavix_FigMdlCir(0.0, 0.0, 40.0);
  Endure("redraws", Rounds(500, 10000), [] {
    ASSERT_EQ(0, Tavix_Drw(1));
    ::UpdateWindow(Window());
  });
}

TEST_F(Endurance, OfLinks) {
  std::ignore = HeldByLibrary();
  ASSERT_EQ(0, Tavix_Crt());
  Endure("links", Rounds(50, 1000), [this] {
    ASSERT_EQ(0, LinkPlot(200, 300));
    ASSERT_EQ(0, Tavix_Dsp(1));
    DrainMessages();
  });
}

TEST_F(Endurance, OfLives) {
  std::ignore = HeldByLibrary();
  const std::vector<LifeStep> life = WholeLife(host_.Window());
  Endure("lives", Rounds(20, 1000), [&] {
    for (const LifeStep& step : life) step.run();
  });
}

// Both save legends into one file and want the figure files of one folder.
TEST_F(Endurance, OfTwoProgramsOfOneUser) {
  SecondProgram other;
  ASSERT_EQ("0", other.Ask("live without end"));
  int with_figures = 0;
  const int rounds = Rounds(200, 2000);
  for (int color = 0; color < rounds; ++color) {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_ChgPntHan(3, 3, 1, color, color % 20, 10, 1));
    const int code = Tavix_FigStt(1, 101);
    ASSERT_TRUE(code == 0 || code == -1) << code;
    with_figures += code == 0 ? 1 : 0;
    ASSERT_EQ(0, Tavix_Del());
  }
  other.EndByForce();
  EXPECT_TRUE(IsLegendOfSomeLife(ReadBytes(LegendFile()))) << ReadBytes(LegendFile());
  std::cout << rounds << " lives beside another program, " << with_figures
            << " of them with figures\n";
}

}  // namespace
}  // namespace tavix::test
